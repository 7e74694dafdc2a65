// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVector>
#include <QWidget>

class QTabBar;
class QVBoxLayout;

namespace velmora
{

/// The side of the editor: preview, groups of settings, and below them the making of the video. It
/// shows as much at a time as its height has room for: everything; the preview and one group; or
/// one of them, chosen by tabs. GUI thread.
class EditorSide : public QWidget
{
    Q_OBJECT
public:
    enum class Mode { Tabs, PreviewAndTabs, All };

    /// Takes ownership of its parts.
    EditorSide(QWidget *preview, QWidget *create, QWidget *parent = nullptr);

    /// @p grows: it takes spare height.
    void addGroup(QWidget *group, bool grows);
    /// The texts of the tabs: of the preview, and of the groups in their order.
    void setTitles(const QStringList &titles);
    Mode mode() const { return m_mode; }
    /// Brings the preview to sight.
    void showPreview();

    /// What the tabs need, whatever is shown now: no text is cut off, and a window can always
    /// become smaller again.
    QSize minimumSizeHint() const override;

signals:
    void modeChanged(velmora::EditorSide::Mode mode);
    void partsChanged(); ///< They may need more or less room, as after a change of the language.

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int leastWidth() const;
    int previewHeight() const;
    int tallestGroup() const;
    Mode fittingMode() const;
    void arrange();
    void setMode(Mode mode);
    void showParts();
    void setTabOrder();

    QWidget *m_preview;
    QWidget *m_create;
    QTabBar *m_bar;
    QWidget *m_box;  ///< Holds the groups.
    QWidget *m_rest; ///< Takes the height that a preview by itself leaves.
    QVBoxLayout *m_column;
    QVBoxLayout *m_boxColumn;
    QVector<QWidget *> m_groups;
    Mode m_mode = Mode::All;
};

} // namespace velmora
