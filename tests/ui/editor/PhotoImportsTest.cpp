// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/PhotoImports.h"
#include "ui/editor/BusyNote.h"
#include "ui/editor/EditorPage.h"

#include "helpers/Files.h"
#include "helpers/OrdinaryUser.h"

#include <QUndoStack>

using namespace velmora;

/// Large and faulty drops.
class PhotoImportsTest : public QObject
{
    Q_OBJECT

private:
    void write(const QString &name, const QByteArray &content) const
    {
        const QString path = m->path("drop/") + name;
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && writeFile(path, content));
    }
    void letOthersEnter() const
    {
        QVERIFY(QFile::setPermissions(m->path(""), QFile::ReadOwner | QFile::WriteOwner |
                                                       QFile::ExeOwner | QFile::ExeGroup |
                                                       QFile::ExeOther));
    }
    MessageDialog *report() const { return m->child<MessageDialog>("notAllPhotos"); }
    QString details() const { return report()->findChild<QPlainTextEdit *>()->toPlainText(); }
    bool isImporting() const { return m->page->findChild<PhotoImports *>()->isRunning(); }

    std::unique_ptr<EditorPage> m;

private slots:
    void init() { m = std::make_unique<EditorPage>(); }
    void cleanup() { m.reset(); }

    void folderOf5000MixedFiles()
    {
        const QByteArray png = readFile(m->makePhoto(QStringLiteral("drop/a/img0.png")));
        for (int i = 1; i < 5000; ++i) {
            const QString name = QStringLiteral("%1/img%2").arg(QLatin1Char("abc"[i % 3])).arg(i);
            if (i % 5 == 0)
                write(name + QStringLiteral(".txt"), "no photo");
            else
                write(name + QStringLiteral(".png"), i % 500 == 1 ? "broken" : png);
        }
        m->page->addFolder(m->path("drop"));
        QTRY_COMPARE(m->items().size(), 1 + 5000 - 999 - 10);
        QTRY_VERIFY(report());
        QCOMPARE(details().count(QLatin1Char('\n')), 9);
        QCOMPARE(m->items().at(1)->title(), QStringLiteral("img0.png"));
        QVERIFY(m->names().indexOf(QStringLiteral("img9.png")) <
                m->names().indexOf(QStringLiteral("img12.png")));
        QCOMPARE(m->page->editor().undoStack()->count(), 1);
        report()->reject();
    }

    void foldersComeOneAfterAnother()
    {
        for (const char *name : {"drop/10/x.png", "drop/2/b/y.png", "drop/2/z.png", "drop/w.png"})
            QVERIFY(!m->makePhoto(QLatin1String(name)).isEmpty());
        m->page->addFolder(m->path("drop"));
        QTRY_COMPARE(m->items().size(), 5);
        QCOMPARE(m->names().mid(1).join(QLatin1Char(' ')),
                 QStringLiteral("w.png z.png y.png x.png"));
    }

    void folderWithoutPhotosIsListed_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("empty") << QString();
        QTest::newRow("other files") << "inner/notes.txt";
    }
    void folderWithoutPhotosIsListed()
    {
        QFETCH(QString, file);
        QVERIFY(QDir().mkpath(m->path("drop")));
        if (!file.isEmpty())
            write(file, "text");
        m->page->addFolder(m->path("drop"));
        QTRY_VERIFY(report());
        QCOMPARE(details(),
                 QDir::toNativeSeparators(m->path("drop")) + QStringLiteral(": holds no photos"));
    }

    void unreadableSubfolderIsListed()
    {
        QVERIFY(!m->makePhoto(QStringLiteral("drop/good.png")).isEmpty());
        const QString secret = m->path("drop/secret");
        QVERIFY(QDir().mkpath(secret));
        QVERIFY(QFile::setPermissions(secret, {}));
        letOthersEnter();
        const OrdinaryUser user;
        if (!user.isOne())
            QSKIP("This user may read every file.");
        m->page->addFolder(m->path("drop"));
        QTRY_VERIFY(report());
        QCOMPARE(details(), QDir::toNativeSeparators(secret) + QStringLiteral(": cannot be read"));
        QCOMPARE(m->names().mid(1), QStringList(QStringLiteral("good.png")));
    }

    void importCanBeCancelled()
    {
        for (int i = 0; i < 2000; ++i)
            write(QStringLiteral("img%1.png").arg(i), "broken");
        m->page->addFolder(m->path("drop"));
        QTRY_VERIFY(isImporting());
        emit m->child<BusyNote>("importNote")->cancelClicked();
        QTRY_VERIFY(!isImporting());
        QCOMPARE(m->items().size(), 1);
        QVERIFY(!report());
        QVERIFY(!m->child<QWidget>("importNote")->isVisible());
    }

    void photosStayWithTheSlideBefore_data()
    {
        QTest::addColumn<QString>("result");
        QTest::newRow("others came") << "xabyc";
        QTest::newRow("moved") << "acby";
        QTest::newRow("gone") << "acy";
    }
    void photosStayWithTheSlideBefore()
    {
        m->addPhotos(QStringLiteral("abc"));
        ProjectEditor &editor = m->page->editor();
        ProjectItem *before = m->items().at(2);
        m->page->onFilesDropped({m->makePhoto(QStringLiteral("y.png"))}, 2);
        switch (QTest::currentDataTag()[0]) {
        case 'o':
            editor.addPhotos({m->makePhoto(QStringLiteral("x.png"))}, 1);
            break;
        case 'm':
            editor.moveSlides({before}, m->items().size());
            break;
        default:
            editor.removeSlides({before});
        }
        QTRY_VERIFY(!isImporting());
        QTEST(m->letters(), "result");
    }

    void severalDropsReportOnce()
    {
        write(QStringLiteral("broken.png"), "broken");
        write(QStringLiteral("notes.txt"), "text");
        QFile cut(m->makePhoto(QStringLiteral("drop/cut.jpg")));
        QVERIFY(cut.resize(cut.size() * 9 / 10));
        const QString good = m->makePhoto(QStringLiteral("good.png"));
        m->page->onFilesDropped({m->path("drop/broken.png"), cut.fileName()}, -1);
        m->page->onFilesDropped({m->path("drop/notes.txt"), good}, 0);
        m->page->onFilesDropped({m->path("drop/gone.png")}, -1);
        QTRY_VERIFY(report());
        for (const char *line :
             {"broken.png", "cut.jpg: is damaged or incomplete", "notes.txt", "gone.png"})
            QVERIFY2(details().contains(QLatin1String(line)), line);
        QCOMPARE(m->page->findChildren<MessageDialog *>().size(), 1);
        QCOMPARE(m->names().mid(1), QStringList(QStringLiteral("good.png")));
    }

    void photoWithoutPermissionIsListed()
    {
        const QString secret = m->makePhoto(QStringLiteral("secret.png"));
        QVERIFY(QFile::setPermissions(secret, QFile::WriteOwner));
        letOthersEnter();
        const OrdinaryUser user;
        if (!user.isOne())
            QSKIP("This user may read every file.");
        m->page->onFilesDropped({secret}, -1);
        QTRY_VERIFY(report());
        QVERIFY2(details().contains(QStringLiteral("secret.png: cannot be opened")),
                 qPrintable(details()));
        QCOMPARE(m->items().size(), 1);
    }

    void anotherProjectEndsTheImport()
    {
        for (int i = 0; i < 500; ++i)
            write(QStringLiteral("img%1.png").arg(i), "broken");
        m->page->addFolder(m->path("drop"));
        ProjectFile other(m->settings, ProjectFile::TitleSlide::Create);
        m->page->setProject(&other);
        QTRY_VERIFY(!isImporting());
        QCOMPARE(other.items().size(), 1);
        m->page->setProject(nullptr);
    }
};

QTEST_MAIN(PhotoImportsTest)
#include "PhotoImportsTest.moc"
