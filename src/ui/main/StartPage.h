// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

namespace velmora
{

class DropArea;
class MainMenu;

/// The page that invites to add photos, or to go on with something that is there. GUI thread.
class StartPage : public QWidget
{
    Q_OBJECT
public:
    /// The buttons trigger the actions of @p menu.
    explicit StartPage(const MainMenu &menu, QWidget *parent = nullptr);

    /// Offers to go on with the slideshow of that name; empty: none.
    void setRecentName(const QString &name);
    /// Offers the sample photos.
    void setSamplesOffered(bool offered);

signals:
    void recentClicked();
    void samplesClicked();
    /// As those of the drop area.
    void dropBegin();
    void fileDropped(const QString &fileName);
    void dropEnd();

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *addButton(QWidget *row, const char *name, const char *icon, const char *style);
    void retranslate();

    DropArea *m_dropArea;
    QPushButton *m_addPhoto;
    QPushButton *m_addFolder;
    QPushButton *m_open;
    QPushButton *m_recent;
    QPushButton *m_samples;
    QString m_recentName;
};

} // namespace velmora
