// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EmbeddedPage.h"

#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

namespace velmora
{

namespace
{

class WebEnginePage : public EmbeddedPage
{
public:
    WebEnginePage() : m_view(new QWebEngineView(this))
    {
        // A profile without a name keeps nothing: each sign-in begins without cookies. It is made
        // after the view, and hence ends after the view's page, as it must.
        auto *profile = new QWebEngineProfile(this);
        m_view->setPage(new QWebEnginePage(profile, m_view));
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_view);
        connect(m_view, &QWebEngineView::titleChanged, this, &EmbeddedPage::titleChanged);
        connect(m_view, &QWebEngineView::loadFinished, this, [this](bool ok) {
            if (ok)
                emit urlChanged(m_view->url().toString());
        });
    }

    void navigate(const QUrl &address) override { m_view->load(address); }

private:
    QWebEngineView *m_view;
};

} // namespace

std::unique_ptr<EmbeddedPage> createEmbeddedPage()
{
    return std::make_unique<WebEnginePage>();
}

} // namespace velmora
