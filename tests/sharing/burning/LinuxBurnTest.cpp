// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "sharing/burning/BurnController.h"
#include "sharing/burning/BurnDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

/// The dialog with the system's own writer, to a file that stands for a drive.
class LinuxBurnTest : public QObject
{
    Q_OBJECT

private slots:
    void burnsToAnImage()
    {
        Theme::install(*qApp);
        const QTemporaryDir folder;
        const QString video = folder.filePath(QStringLiteral("Summer.mp4"));
        const QByteArray content(3000000, 'v');
        QFile file(video);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
        file.close();

        const QString image = folder.filePath(QStringLiteral("disc.img"));
        qputenv("VELMORA_DISC_IMAGES", QFile::encodeName(image));
        BurnController controller(createDiscWriter());
        BurnDialog dialog(controller, video, QStringLiteral("Summer"));
        dialog.show();
        auto *devices = dialog.findChild<QComboBox *>(QStringLiteral("cbDevices"));
        QTRY_VERIFY_WITH_TIMEOUT(devices->count() > 0, 20000);
        devices->setCurrentIndex(devices->count() - 1);
        QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("btnBurn")),
                          Qt::LeftButton);
        auto *pages = dialog.findChild<QStackedWidget *>(QStringLiteral("pages"));
        QTRY_COMPARE_WITH_TIMEOUT(pages->currentWidget()->objectName(), QStringLiteral("pgResult"),
                                  20000);
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lbResult"))->text(),
                 QStringLiteral("Succeeded"));

        QProcess xorriso;
        const QString copy = folder.filePath(QStringLiteral("copy"));
        xorriso.start(QStringLiteral("xorriso"),
                      {QStringLiteral("-osirrox"), QStringLiteral("on"), QStringLiteral("-indev"),
                       QStringLiteral("stdio:") + image, QStringLiteral("-extract"),
                       QStringLiteral("/Summer.mp4"), copy});
        QVERIFY(xorriso.waitForFinished());
        QFile written(copy);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), content);
    }
};

QTEST_MAIN(LinuxBurnTest)
#include "LinuxBurnTest.moc"
