// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/ProjectItem.h"

namespace velmora
{

/// The title slide ("Starter"): a caption on a generated background.
class ProjectItemFirst : public ProjectItem
{
    Q_OBJECT
public:
    explicit ProjectItemFirst(int timeSeconds, QObject *parent = nullptr);

    int backgroundIndex() const { return m_backgroundIndex; } ///< 0 to 29, see TitleBackground.h.
    void setBackgroundIndex(int index) { m_backgroundIndex = index; }
    void setVisible(bool visible) { m_visible = visible; }

    bool isShown() const override { return m_visible; }
    /// The value of the key "type" in the document.
    static QLatin1String typeName() { return QLatin1String("starter"); }

    QString title() const override; ///< "Starter".
    void toJson(QJsonObject &object) const override;
    void fromJson(const QJsonObject &object) override;

private:
    int m_backgroundIndex = 22;
    bool m_visible = true;
};

} // namespace velmora
