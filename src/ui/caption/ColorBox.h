// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QComboBox>

namespace velmora
{

/// Offers named colours with swatches, "Custom...", which asks for any other, and "None" where that
/// is allowed. GUI thread.
class ColorBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ColorBox(QWidget *parent = nullptr);

    /// Also offers "None", an invalid colour.
    void setNoneAllowed(bool allowed);
    QColor color() const { return m_color; }
    /// Shows @p color, which need not be one of those offered, without a signal.
    void setColor(const QColor &color);

signals:
    void colorChosen(const QColor &color); ///< By the user.

protected:
    void changeEvent(QEvent *event) override;

private:
    void fill();
    void addColor(int index, const QString &text, const QColor &color);
    void onActivated(int index);
    QIcon swatch(const QColor &color) const;

    bool m_noneAllowed = false;
    QColor m_color = Qt::white;
};

} // namespace velmora
