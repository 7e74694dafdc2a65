// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

class ServicesConfig;

/// The program's pages on the web, "site/manual" and "site/home" of the configuration, opened in
/// the default browser. In the manual's address "%1" stands for the place from which help is asked.
/// A browser that cannot be started is a usage event and nothing else. GUI thread.
class WebPages
{
public:
    /// @p services must outlive the object.
    explicit WebPages(const ServicesConfig &services) : m_services(services) {}

    bool hasManual() const;
    bool hasHomePage() const;
    void openManual(const QString &place) const;
    void openHomePage() const;

private:
    const ServicesConfig &m_services;
};

} // namespace velmora
