#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""check.py LUPDATE SOURCES TS...: fails when a text of the sources has no translation, or when a
translation lost a placeholder or a line. Reads only."""
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path


def placeholders(text):
    return sorted(set(re.findall(r'%(?:L?\d|n)', text)))


def faults(file):
    for context in ElementTree.parse(file).getroot().iter('context'):
        for message in context.iter('message'):
            source = message.findtext('source')
            translation = message.find('translation')
            forms = [form.text or '' for form in translation.iter('numerusform')]
            texts = forms or [translation.text or '']
            where = f"{file.name}: {context.findtext('name')}: {source!r}"
            if translation.get('type') or not all(texts):
                yield f'{where} is not translated'
                continue
            for text in texts:
                if placeholders(text) != placeholders(source):
                    yield f'{where} has other placeholders in {text!r}'
                if text.count('\n') != source.count('\n'):
                    yield f'{where} has other lines in {text!r}'


def main():
    lupdate, sources, *files = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        copies = [Path(shutil.copy(file, folder)) for file in files]
        subprocess.run([lupdate, '-silent', '-locations', 'none', '-no-obsolete', sources, '-ts',
                        *map(str, copies)], check=True, stderr=subprocess.DEVNULL)
        found = [fault for copy in copies for fault in faults(copy)]
    print(*found, sep='\n')
    return 1 if found or not files else 0


sys.exit(main())
