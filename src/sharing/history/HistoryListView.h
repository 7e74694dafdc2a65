// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QListView>
#include <QPersistentModelIndex>
#include <QUuid>
#include <QVector>

namespace velmora
{

class HistoryModel;
class HistoryRowWidget;
class ThubnailProvider;

/// The rows of the history. Widgets, pictures and facts are made for the rows in sight only. GUI
/// thread.
class HistoryListView : public QListView
{
    Q_OBJECT
public:
    explicit HistoryListView(QWidget *parent = nullptr);
    ~HistoryListView() override;

    void setHistory(HistoryModel *model);
    /// The widget of a row; null when the row is out of sight.
    HistoryRowWidget *rowWidget(int row) const;

signals:
    /// The room of the scroll bar beside the rows, px.
    void freeSpaceChanged(int width);
    // From the buttons of the row that is selected by pressing them.
    void openProject(const QString &fileName);
    void previewProject(const QString &fileName);
    void deleteProject(const QString &fileName);
    void burnProject(const QString &fileName, const QString &starterText);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void updateGeometries() override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    void updateRows();
    void createRow(int row);
    void refreshRows(int first, int last);
    void requestPicture(HistoryRowWidget &row);
    void forgetPictures();
    void onPictureReady(const QUuid &id);
    void paintEmptyState();

    HistoryModel *m_history = nullptr;
    ThubnailProvider *m_pictures;
    QHash<QString, QUuid> m_requests;      ///< Photo to picture.
    QVector<QPersistentModelIndex> m_rows; ///< Those that have a widget.
};

} // namespace velmora
