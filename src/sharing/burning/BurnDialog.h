// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"
#include "platform/DiscWriter.h"
#include "sharing/burning/BurnJob.h"

#include <QString>

#include <memory>

namespace Ui
{
class BurnDialog;
}

namespace velmora
{

class BurnController;

/// Asks how a video is burnt, burns it and tells how it went. Closing it while it burns asks first.
/// GUI thread.
class BurnDialog : public CorDialog
{
    Q_OBJECT
public:
    /// @p diskTitle is the text of the project's title slide; where it is empty, "My slideshow" is
    /// offered. @p controller must outlive the dialog.
    BurnDialog(BurnController &controller, const QString &video, const QString &diskTitle,
               QWidget *parent = nullptr);
    ~BurnDialog() override;

    /// Burns with the drives of this machine.
    static void run(const QString &video, const QString &diskTitle, QWidget *parent);

public slots:
    void reject() override;
    void on_btnBurn_clicked();
    void on_btnYes_clicked();
    void on_btnNo_clicked();
    void on_btnCancelTwo_clicked();
    void on_btnCancel_clicked();
    void on_btnClose_clicked();
    void on_btnRefresh_clicked();

private:
    void setUpFields(const QString &diskTitle);
    void connectController();
    void findDevices();
    void onDevicesChanged();
    void onMediaChecked(const DiscMedia &media);
    void onBurnFinished(bool succeeded);
    void askAboutContent(const DiscMedia &media);
    void start(bool erase);
    void showProblem(const QString &text);
    void setBusy(const QString &text);
    void updateBurnButton();

    BurnController &m_controller;
    const QString m_video;
    std::unique_ptr<Ui::BurnDialog> m_ui;
    bool m_checking = false; ///< The burn button was pressed and the disc is being looked at.
};

} // namespace velmora
