// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPair>
#include <QPushButton>
#include <QString>
#include <QVariant>
#include <QVector>

class QMenu;

namespace velmora
{

/// A flat button that shows its current value as text and offers a menu of values. GUI thread.
class QPopupButton : public QPushButton
{
    Q_OBJECT
public:
    using Values = QVector<QPair<QString, QVariant>>;

    explicit QPopupButton(QWidget *parent = nullptr);

    void setValues(const Values &values);
    const Values &values() const { return m_values; }
    QVariant value() const { return m_value; }
    /// Shows @p value without emitting a signal; a value that is not in the list is shown by
    /// @p text, or as it is.
    void setValue(const QVariant &value, const QString &text = QString());

signals:
    /// The user chose a value from the menu, also the one that was current.
    void valueSelected(const QVariant &value);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showCurrent();
    QRect visualRect(const QRect &area) const;
    void select(const QVariant &value);

    Values m_values;
    QVariant m_value;
    QMenu *m_menu;
};

} // namespace velmora
