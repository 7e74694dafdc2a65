// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

#include <memory>

namespace Ui
{
class SetNameForm;
}

namespace velmora
{

/// Asks for the title of a video. Accepted by "UPDATE" and Enter, only with a title that is not
/// blank; everything else rejects. GUI thread.
class SetNameDialog : public CorDialog
{
    Q_OBJECT
public:
    explicit SetNameDialog(const QString &name, QWidget *parent = nullptr);
    ~SetNameDialog() override;

    QString name() const; ///< Without blanks at its ends.

public slots:
    void on_btnUpdate_clicked();
    void on_btnClose_clicked();
    void on_btnCloseTop_clicked();

private:
    std::unique_ptr<Ui::SetNameForm> m_ui;
};

} // namespace velmora
