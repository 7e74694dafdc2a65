// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "sharing/upload/UploadFailWindow.h"
#include "sharing/upload/UploadSuccessWindow.h"
#include "sharing/upload/WebLoginDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace velmora;

namespace
{

class FakePage : public EmbeddedPage
{
public:
    void navigate(const QUrl &address) override { visited = address; }
    QUrl visited;
};

template <typename Widget> Widget *child(QWidget &parent, const char *name)
{
    return parent.findChild<Widget *>(QLatin1String(name));
}

} // namespace

class UploadDialogsTest : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &address) { m_opened.append(address.toString(QUrl::FullyEncoded)); }

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        for (const char *scheme : {"http", "https", "file", "javascript"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
    }
    void init() { m_opened.clear(); }

    void onlyWebPagesAreOpened_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("opens");
        QTest::newRow("web page") << "https://a.test/watch?v=a%20b" << true;
        for (const char *address :
             {"", "file:///etc/passwd", "javascript:alert(1)", "https://", "nonsense"})
            QTest::newRow(address) << address << false;
    }

    void onlyWebPagesAreOpened()
    {
        QFETCH(QString, address);
        QFETCH(bool, opens);
        UploadSuccessWindow dialog(QStringLiteral("dropbox"), address);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(child<QPushButton>(dialog, "btnOpen")->isVisible(), opens);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_opened, opens ? QStringList{address} : QStringList());
    }

    void failureShowsPlainText()
    {
        const QString error = QStringLiteral("Error uploading video:<b>The user has exceeded the "
                                             "number of videos they may upload.</b>");
        UploadFailWindow dialog(error);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *label = child<QLabel>(dialog, "lblError");
        QCOMPARE(label->text(), error);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QTest::mouseClick(child<QPushButton>(dialog, "btnClose"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }

    void signInEndsWithTheCode_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("code");
        const char *rows[][3] = {{"Success code=4/abc", "", "4/abc"},
                                 {"Account - Success code=x=y z", "", "x=y z"},
                                 {"", "https://a.test/authorize_submit?x=1", ""}};
        for (const auto &row : rows)
            QTest::addRow("%s%s", row[0], row[1]) << row[0] << row[1] << row[2];
    }

    void signInEndsWithTheCode()
    {
        QFETCH(QString, title);
        QFETCH(QString, address);
        QFETCH(QString, code);
        auto *shown = new FakePage;
        WebLoginDialog dialog{std::unique_ptr<EmbeddedPage>(shown)};
        QSignalSpy authenticated(&dialog, &WebLoginDialog::authenticated);
        QSignalSpy failed(&dialog, &WebLoginDialog::failed);
        dialog.navigate(QUrl(QStringLiteral("https://a.test/sign-in")));
        QCOMPARE(shown->visited, QUrl(QStringLiteral("https://a.test/sign-in")));
        dialog.show();
        emit shown->titleChanged(QStringLiteral("Sign in"));
        emit shown->urlChanged(QStringLiteral("https://a.test/sign-in"));
        QVERIFY(dialog.isVisible());
        if (!title.isEmpty())
            emit shown->titleChanged(title);
        if (!address.isEmpty())
            emit shown->urlChanged(address);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(authenticated.size(), 1);
        QCOMPARE(authenticated.at(0).at(0).toString(), code);
        QCOMPARE(failed.size(), 0);
    }

    void closedSignInFails()
    {
        WebLoginDialog dialog(std::make_unique<FakePage>());
        QSignalSpy authenticated(&dialog, &WebLoginDialog::authenticated);
        QSignalSpy failed(&dialog, &WebLoginDialog::failed);
        bool hidden = false; // What follows may show a dialog of its own.
        connect(&dialog, &WebLoginDialog::failed, this, [&] { hidden = dialog.isHidden(); });
        dialog.show();
        QTest::mouseClick(child<QToolButton>(dialog, "btnCloseTop"), Qt::LeftButton);
        dialog.on_webView_titleChanged(QStringLiteral("Success code=late"));
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed.at(0).at(0).toString(), QStringLiteral("Authorization error"));
        QVERIFY(hidden);
        QCOMPARE(authenticated.size(), 0);
    }

private:
    QStringList m_opened;
};

QTEST_MAIN(UploadDialogsTest)
#include "UploadDialogsTest.moc"
