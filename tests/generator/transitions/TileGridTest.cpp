// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/TileGrid.h"

#include <QRegion>
#include <QtTest>

using namespace velmora;

class TileGridTest : public QObject
{
    Q_OBJECT
private slots:
    void tilesCoverTheFrame_data() { sizes(); }
    void tilesCoverTheFrame()
    {
        QFETCH(QSize, frame);
        QFETCH(int, tilesDown);
        const TileGrid grid(frame, tilesDown);
        qint64 area = 0;
        QRegion covered;
        for (int row = 0; row < grid.rows(); ++row) {
            for (int column = 0; column < grid.columns(); ++column) {
                const QRect tile = grid.tile(column, row);
                QVERIFY(!tile.isEmpty());
                covered += tile;
                area += qint64(tile.width()) * tile.height();
            }
        }
        QCOMPARE(covered, QRegion(QRect(QPoint(0, 0), frame)));
        QCOMPARE(area, qint64(frame.width()) * frame.height());
    }

    void spiralIsAPath_data() { sizes(); }
    void spiralIsAPath()
    {
        QFETCH(QSize, frame);
        QFETCH(int, tilesDown);
        const TileGrid grid(frame, tilesDown);
        const std::vector<QPoint> path = grid.spiral();
        QCOMPARE(static_cast<int>(path.size()), grid.count());
        QCOMPARE(path.front(), QPoint(0, 0));
        QSet<qint64> visited;
        for (size_t i = 0; i < path.size(); ++i) {
            visited.insert(path[i].y() * qint64(grid.columns()) + path[i].x());
            if (i > 0)
                QCOMPARE((path[i] - path[i - 1]).manhattanLength(), 1);
        }
        QCOMPARE(visited.size(), grid.count());
    }

    void tilesFollowTheFrame()
    {
        const TileGrid small({640, 360}, 9);
        const TileGrid large({3840, 2160}, 9);
        QCOMPARE(small.columns(), 16);
        QCOMPARE(small.rows(), 9);
        QCOMPARE(large.columns(), 16);
        QCOMPARE(large.tile(3, 2).size(), QSize(240, 240));
    }

private:
    void sizes()
    {
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<int>("tilesDown");
        const QVector<QSize> frames = {{1, 1},     {2, 2},     {5, 400},    {16, 9},
                                       {641, 479}, {480, 640}, {1920, 1080}};
        for (const QSize &frame : frames) {
            for (const int tiles : {1, 2, 9}) {
                QTest::addRow("%dx%d in %d", frame.width(), frame.height(), tiles)
                    << frame << tiles;
            }
        }
    }
};

QTEST_GUILESS_MAIN(TileGridTest)
#include "TileGridTest.moc"
