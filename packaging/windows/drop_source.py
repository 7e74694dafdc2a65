#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""drop_source.py FILE...: a window from which these files can be dragged, as from a file manager."""
import sys

from PyQt5.QtCore import QMimeData, QUrl, Qt
from PyQt5.QtGui import QDrag
from PyQt5.QtWidgets import QApplication, QLabel


class Source(QLabel):
    def __init__(self, files):
        super().__init__(f'{len(files)} files')
        self.files = files
        self.setAlignment(Qt.AlignCenter)
        self.setWindowTitle('Drop source')

    def mouseMoveEvent(self, event):
        data = QMimeData()
        data.setUrls([QUrl.fromLocalFile(file) for file in self.files])
        drag = QDrag(self)
        drag.setMimeData(data)
        print('dragging', flush=True)
        action = drag.exec_(Qt.CopyAction)
        print('dropped' if action == Qt.CopyAction else 'refused', flush=True)


application = QApplication(sys.argv[:1])
source = Source(sys.argv[1:])
source.setGeometry(0, 0, 160, 120)
source.show()
sys.exit(application.exec_())
