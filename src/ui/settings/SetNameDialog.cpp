// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings/SetNameDialog.h"

#include "chrome/TitleBar.h"
#include "ui_SetNameDialog.h"

namespace velmora
{

SetNameDialog::SetNameDialog(const QString &name, QWidget *parent)
    : CorDialog(parent), m_ui(std::make_unique<Ui::SetNameForm>())
{
    setObjectName(QStringLiteral("setNameDialog"));
    m_ui->setupUi(content());
    setWindowTitle(tr("Set video title"));
    const auto update = [this] { m_ui->btnUpdate->setEnabled(!this->name().isEmpty()); };
    connect(m_ui->txtName, &QLineEdit::textChanged, this, update);
    connect(m_ui->btnUpdate, &QPushButton::clicked, this, &SetNameDialog::on_btnUpdate_clicked);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &SetNameDialog::on_btnClose_clicked);
    connect(titleBar(), &TitleBar::closeRequested, this, &SetNameDialog::on_btnCloseTop_clicked);
    m_ui->txtName->setText(name);
    m_ui->txtName->selectAll();
    m_ui->txtName->setFocus();
    update();
}

SetNameDialog::~SetNameDialog() = default;

QString SetNameDialog::name() const
{
    return m_ui->txtName->text().trimmed();
}

void SetNameDialog::on_btnUpdate_clicked()
{
    accept();
}

void SetNameDialog::on_btnClose_clicked()
{
    reject();
}

void SetNameDialog::on_btnCloseTop_clicked()
{
    reject();
}

} // namespace velmora
