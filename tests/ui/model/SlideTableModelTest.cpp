// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/SlideTableModel.h"
#include "app/AppSettings.h"
#include "helpers/Files.h"
#include "helpers/Words.h"
#include "project/documents/ProjectFile.h"
#include "ui/model/ProjectEditor.h"

#include <QUndoStack>
#include <QtTest>

using namespace velmora;

class SlideTableModelTest : public QObject
{
    Q_OBJECT

private:
    QString makePhoto(const QString &name, const QSize &size = {300, 200}) const
    {
        const QString path = m_folder.filePath(name);
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image.save(path) ? path : QString();
    }
    QImage thumbnail(const SlideTableModel &model, int row) const
    {
        return model.index(row, 0).data(Qt::DecorationRole).value<QImage>();
    }

    static bool isMissing(const SlideTableModel &model, int row)
    {
        return model.index(row, 0).data(SlideTableModel::MissingRole).toBool();
    }

    QTemporaryDir m_folder;
    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;

private slots:
    void init()
    {
        m_settings = AppSettings();
        m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
        m_editor = std::make_unique<ProjectEditor>(m_settings);
        m_editor->setProject(m_project.get());
    }
    void cleanup()
    {
        m_editor.reset();
        m_project.reset();
    }

    void modelFollowsEveryChange()
    {
        m_editor->addPhotos({QStringLiteral("/p/a.jpg"), QStringLiteral("/p/b.jpg")}, -1);
        SlideTableModel model(*m_editor);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.photoCount(), 2);
        QVERIFY(model.setData(model.index(2, SlideTableModel::TimeColumn), 10, Qt::EditRole));
        QCOMPARE(model.index(2, SlideTableModel::TimeColumn).data().toString(),
                 QStringLiteral("10 sec"));
        QVERIFY(!model.setData(model.index(0, SlideTableModel::TransitionColumn), 2, Qt::EditRole));
        m_editor->removeSlides({m_project->items().at(1)});
        QCOMPARE(model.rowCount(), 2);
        m_editor->undoStack()->undo();
        QCOMPARE(model.rowCount(), 3);
        m_editor->setProject(nullptr);
        QCOMPARE(model.rowCount(), 0);
    }

    void missingFilesAreFoundLater()
    {
        const QString path = makePhoto(QStringLiteral("here.png"));
        m_editor->addPhotos({path, QStringLiteral("/p/gone.jpg")}, -1);
        SlideTableModel model(*m_editor);
        QTRY_VERIFY(isMissing(model, 2));
        QVERIFY(!isMissing(model, 1));
        QVERIFY(QFile::remove(path));
        model.checkFiles();
        QTRY_VERIFY(isMissing(model, 1));
        m_editor->relocate(m_project->items().at(2), makePhoto(QStringLiteral("new.png")));
        QTRY_VERIFY(!isMissing(model, 2));
    }

    void thumbnailsArriveLater_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<int>("angle");
        QTest::addColumn<QSize>("thumbnail");
        QTest::newRow("landscape") << QSize(300, 200) << 0 << QSize(96, 64);
        QTest::newRow("turned") << QSize(300, 200) << 90 << QSize(64, 96);
        QTest::newRow("portrait") << QSize(200, 300) << 0 << QSize(64, 96);
        QTest::newRow("small photos stay small") << QSize(30, 20) << 0 << QSize(30, 20);
        QTest::newRow("panorama") << QSize(4000, 2) << 0 << QSize(96, 1);
    }
    void thumbnailsArriveLater()
    {
        QFETCH(QSize, photo);
        QFETCH(int, angle);
        QFETCH(QSize, thumbnail);
        const QString name = QStringLiteral("%1x%2.png").arg(photo.width()).arg(photo.height());
        m_editor->addPhotos({makePhoto(name, photo)}, -1);
        m_editor->rotate({m_project->items().at(1)}, angle);
        SlideTableModel model(*m_editor);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(this->thumbnail(model, 1).isNull());
        QTRY_VERIFY(!this->thumbnail(model, 1).isNull());
        QVERIFY(changed.size() > 0);
        QCOMPARE(this->thumbnail(model, 1).size(), thumbnail);
        QCOMPARE(this->thumbnail(model, 1).pixelColor(0, 0), QColor(Qt::red));
    }

    void thumbnailFollowsTheFile_data()
    {
        QTest::addColumn<QString>("before");
        QTest::newRow("comes back") << QString();
        QTest::newRow("comes whole") << "broken";
        QTest::newRow("edited") << "photo";
    }
    void thumbnailFollowsTheFile()
    {
        QFETCH(QString, before);
        const QString path = m_folder.filePath(QStringLiteral("follows.png"));
        QFile::remove(path);
        if (before == QLatin1String("photo"))
            QCOMPARE(makePhoto(QStringLiteral("follows.png")), path);
        if (before == QLatin1String("broken"))
            QVERIFY(writeFile(path, "broken"));
        m_editor->addPhotos({path}, -1);
        SlideTableModel model(*m_editor);
        const auto shown = [&] { return thumbnail(model, 1).pixelColor(0, 0); };
        QVERIFY(thumbnail(model, 1).isNull());
        if (before == QLatin1String("photo"))
            QTRY_COMPARE(shown(), QColor(Qt::red));
        else if (before.isEmpty())
            QTRY_VERIFY(isMissing(model, 1));
        QTest::qWait(100); // the thread has looked at what there is
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(path));
        model.checkFiles();
        QTRY_COMPARE(shown(), QColor(Qt::blue));
    }

    void titleIsShownAsInTheVideo()
    {
        SlideTableModel model(*m_editor);
        m_editor->setResolution({1920, 1080});
        const QImage before = thumbnail(model, 0);
        QCOMPARE(before.size(), QSize(96, 54));
        CaptionStyle caption = m_project->items().first()->caption();
        caption.text.clear();
        m_editor->setCaption(m_project->items(), caption);
        QVERIFY(thumbnail(model, 0) != before);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        m_editor->setResolution({640, 480});
        QVERIFY(changed.size() > 0);
        QCOMPARE(thumbnail(model, 0).size(), QSize(85, 64));
    }

    void onlyVisibleRowsAreDecoded()
    {
        QStringList paths;
        for (int i = 0; i < 40; ++i)
            paths.append(makePhoto(QStringLiteral("%1.png").arg(i)));
        m_editor->addPhotos(paths, -1);
        SlideTableModel model(*m_editor);
        for (int row = 1; row <= 40; ++row)
            QVERIFY(thumbnail(model, row).isNull());
        model.setVisibleRows(31, 34); // the others were scrolled past
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QVERIFY(thumbnail(model, 34).isNull());
        const auto arrived = [&changed] {
            QSet<int> rows;
            for (const QList<QVariant> &change : changed) {
                if (change.at(2).value<QVector<int>>() == QVector<int>{Qt::DecorationRole})
                    rows.insert(change.at(0).toModelIndex().row());
            }
            return rows;
        };
        QTRY_VERIFY(arrived().contains(34));
        for (const int row : arrived())
            QVERIFY2(row == 1 || (row >= 31 && row <= 34), qPrintable(QString::number(row)));
    }

    void rowsTellWhatTheyAre()
    {
        m_editor->addPhotos({QStringLiteral("/p/a.jpg")}, -1);
        SlideTableModel model(*m_editor);
        for (const int row : {0, 1}) {
            const QModelIndex index = model.index(row, 0);
            QCOMPARE(index.data(SlideTableModel::TitleSlideRole).toBool(), row == 0);
            QCOMPARE(index.flags().testFlag(Qt::ItemIsDragEnabled), row == 1);
        }
        QCOMPARE(model.index(1, 0).data(SlideTableModel::TitleRole).toString(),
                 QStringLiteral("a.jpg"));
        QStringList headers;
        for (int column = 0; column < 4; ++column)
            headers.append(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        QCOMPARE(headers, words("# Time Transition Text"));
    }
};

QTEST_MAIN(SlideTableModelTest)
#include "SlideTableModelTest.moc"
