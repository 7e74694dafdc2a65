// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/FadeComposer.h"
#include "generator/encoding/FrameWriter.h"
#include "generator/transitions/Transition.h"

#include <QImage>
#include <QtTest>

using namespace velmora;

namespace
{

/// Soft shapes with a little grain, as photos have it.
QImage photo(const QSize &size, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int grain = (x * 7 + y * 13 + seed) % 5;
            row[x] = qRgb((x * seed / 4 + grain) % 256 / 2 + 60, (y + seed * 9) % 200 + grain,
                          (x + y) / 4 % 256);
        }
    }
    return image;
}

/// The mean and the largest difference of a channel.
QPair<double, int> difference(const QImage &a, const QImage &b)
{
    double sum = 0;
    int largest = 0;
    for (int i = 0; i < a.width() * a.height() * 4; ++i) {
        const int channel = i % 4 == 3 ? 0 : std::abs(a.constBits()[i] - b.constBits()[i]);
        sum += channel;
        largest = std::max(largest, channel);
    }
    return {sum / (3.0 * a.width() * a.height()), largest};
}

class Folder
{
public:
    template <typename Frame> QImage written(const Frame &frame)
    {
        const QString path = m_folder.filePath(QStringLiteral("f.jpg"));
        QString error;
        if (!m_writer.write(frame, path, &error))
            qWarning() << error;
        return QImage(path, "JPEG").convertToFormat(QImage::Format_RGB32);
    }
    FrameWriter &writer() { return m_writer; }

private:
    QTemporaryDir m_folder;
    FrameWriter m_writer;
};

} // namespace

class FadeComposerTest : public QObject
{
    Q_OBJECT
private slots:
    void showsWhatThePainterShows_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QSize>("size");
        for (const auto type : {TransitionType::CrossFade, TransitionType::FadeToBlack,
                                TransitionType::FadeToWhite}) {
            for (const QSize &size : {QSize(160, 96), QSize(158, 90), QSize(10, 6)})
                QTest::addRow("%d at %dx%d", int(type), size.width(), size.height())
                    << int(type) << size;
        }
    }
    void showsWhatThePainterShows()
    {
        QFETCH(int, type);
        QFETCH(QSize, size);
        const auto effect = static_cast<TransitionType>(type);
        const QImage from = photo(size, 3);
        const QImage to = photo(size, 11);
        Folder folder;
        FadeComposer composer;
        QString error;
        constexpr int count = 12;
        for (int frame = 0; frame < count; ++frame) {
            const auto fade = fadeAt(effect, {frame, count});
            QVERIFY(fade);
            const JpegBlocks *made = composer.compose(*fade, from, to, folder.writer(), &error);
            QVERIFY2(made, qPrintable(error));
            QImage painted;
            renderTransitionFrame(effect, from, to, {frame, count}, painted);
            const auto [mean, largest] = difference(folder.written(*made), folder.written(painted));
            QVERIFY2(mean < 1.2, qPrintable(QString::number(mean)));
            QVERIFY2(largest <= 9, qPrintable(QString::number(largest)));
        }
    }

    void beginsAndEndsOnTheStills()
    {
        const QImage from = photo({160, 90}, 5);
        const QImage to = photo({160, 90}, 8);
        Folder folder;
        FadeComposer composer;
        QString error;
        for (const int frame : {0, 10}) {
            const auto fade = fadeAt(TransitionType::CrossFade, {frame, 10});
            const JpegBlocks *made = composer.compose(*fade, from, to, folder.writer(), &error);
            QVERIFY(made);
            QCOMPARE(folder.written(*made), folder.written(frame == 0 ? from : to));
        }
    }

    void followsAnExchangedPicture()
    {
        const Fade onlyAbove{Fade::Layer::From, Fade::Layer::To, 256};
        Folder folder;
        FadeComposer composer;
        QString error;
        QImage from = photo({64, 64}, 1);
        for (int seed = 2; seed < 6; ++seed) {
            const QImage to = photo({64, 64}, seed);
            const JpegBlocks *made = composer.compose(onlyAbove, from, to, folder.writer(), &error);
            QVERIFY(made);
            QCOMPARE(folder.written(*made), folder.written(to));
            from = to;
        }
    }

    void knowsOnlyFades()
    {
        for (int type = 0; type < kTransitionCount; ++type)
            QCOMPARE(fadeAt(static_cast<TransitionType>(type), {1, 2}).has_value(),
                     type == 1 || type >= 26);
    }

    void refusesForeignFiles_data()
    {
        QTest::addColumn<QByteArray>("file");
        const auto jpeg = [](const QImage &image, int quality) {
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            image.save(&buffer, "JPEG", quality);
            return buffer.data();
        };
        const QImage picture = photo({40, 40}, 2);
        QTest::newRow("nothing") << QByteArray("");
        QTest::newRow("no picture") << QByteArray("not a picture at all");
        QTest::newRow("lower quality") << jpeg(picture, 50);
        QTest::newRow("grey") << jpeg(picture.convertToFormat(QImage::Format_Grayscale8), 100);
    }
    void refusesForeignFiles()
    {
        QFETCH(QByteArray, file);
        JpegBlocks blocks;
        QVERIFY(!blocks.read(reinterpret_cast<const uchar *>(file.constData()),
                             static_cast<size_t>(file.size())));
        QVERIFY(blocks.size().isEmpty());
        std::vector<uchar> written;
        QCOMPARE(blocks.write(written), size_t(0));
    }
};

QTEST_GUILESS_MAIN(FadeComposerTest)
#include "FadeComposerTest.moc"
