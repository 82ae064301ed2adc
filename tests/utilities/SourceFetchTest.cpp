// Pulling a page's source: the address check, the character set, the failure reasons, the fetch
// against a server of the test's own on 127.0.0.1 (redirects, 404, silence, a page that never
// ends, TLS spoken to a plain server), and the grabber and full-screen preview windows.
#include "common/TestSupport.h"
#include "CannedServer.h"

#include "documents/frmDocument.h"
#include "platform/CodeMax.h"
#include "services/Workspace.h"
#include "platform/WebBrowser.h"
#include "shell/frmMain.h"
#include "utilities/FullPreview.h"
#include "utilities/SourceFetch.h"
#include "utilities/sourcepage.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {
const QByteArray latinPage = "<html><body>caf\xe9</body></html>";
const QByteArray metaPage = "<html><head><META http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">"
                            "</head><body>\x93quoted\x94</body></html>";
const QByteArray utf8Page = "<p>na\xc3\xafve \xe2\x82\xac</p>";

// The canned server with the pages of these tests.
struct PageServer : CannedServer {
    PageServer()
    {
        pages["/latin"] = {"Content-Type: text/html; charset=\"ISO-8859-1\"\r\n", latinPage};
        pages["/meta"] = {"Content-Type: text/html\r\n", metaPage};
        pages["/utf8"] = {"Content-Type: text/html; charset=utf-8\r\n", utf8Page};
        QByteArray bytes;
        for (int i = 1; i < 256; ++i)
            bytes += char(i);
        pages["/binary"] = {"Content-Type: application/octet-stream\r\n", bytes};
    }
};

struct Outcome {
    bool ok = false;
    QByteArray body, type;
    QString reason;
};

Outcome fetchNow(PageFetch& fetch, const QString& address)
{
    Outcome out;
    bool ended = false;
    QObject::connect(&fetch, &PageFetch::done, [&](const QByteArray& b, const QByteArray& t) {
        out = {true, b, t, {}};
        ended = true;
    });
    QObject::connect(&fetch, &PageFetch::failed, [&](const QString& r) {
        out.reason = r;
        ended = true;
    });
    fetch.start(QUrl(address));
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended; }, 20000)) << address.toStdString();
    fetch.disconnect();
    return out;
}
}

TEST(SourceFetchLogic, TypedAddresses)
{
    const std::pair<const char*, const char*> cases[] = {
        {"http://example.org/a.htm", "http://example.org/a.htm"},
        {"  https://example.org  ", "https://example.org"},
        {"www.example.org/index.html", "http://www.example.org/index.html"},
        {"HTTP://Example.org/", "http://example.org/"},
        {"", ""},
        {"http://", ""},
        {"http://exa mple.org/", ""},
        {"www.example.org/my page.htm", ""},
        {"ftp://example.org/", ""},
        {"file:///etc/passwd", ""},
        {"/etc/passwd", ""},
    };
    for (const auto& [typed, expected] : cases)
        EXPECT_EQ(SourceFetch::webAddress(QString::fromLatin1(typed)).toString(), QString::fromLatin1(expected)) << typed;
}

TEST(SourceFetchLogic, CharacterSetFromHeaderThenMetaTag)
{
    const std::tuple<QByteArray, QByteArray, QByteArray> cases[] = {
        {"text/html; charset=ISO-8859-1", "<meta charset=\"utf-8\">", "iso-8859-1"},
        {"text/html;charset=\"Windows-1251\"", "", "windows-1251"},
        {"text/html", "<head><meta charset=\"Shift_JIS\"></head>", "shift_jis"},
        {"", "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=koi8-r\">", "koi8-r"},
        {"", "<meta name='x' content='y'><meta charset='utf-8'>", "utf-8"},
        {"text/html", "<p>charset=latin1 is only words</p>", ""},
        {"text/html", QByteArray(5000, ' ') + "<meta charset=\"koi8-r\">", ""},  // too far down
        {"", "", ""},
    };
    for (const auto& [type, body, expected] : cases)
        EXPECT_EQ(SourceFetch::charsetOf(type, body), expected) << type.constData() << " / " << body.left(60).constData();
}

TEST(SourceFetchLogic, DecodesByTheDeclaredCharacterSet)
{
    const std::tuple<QByteArray, QByteArray, QString> cases[] = {
        {"text/html; charset=iso-8859-1", "caf\xe9", QStringLiteral("caf\u00e9")},
        {"text/html", "<meta charset=windows-1252>\x93q\x94", QStringLiteral("<meta charset=windows-1252>\u201cq\u201d")},
        {"text/html; charset=utf-8", "\xe2\x82\xac", QStringLiteral("\u20ac")},
        {"text/html; charset=koi8-r", "\xf0\xd2\xc9", QStringLiteral("\u041f\u0440\u0438")},
        // Nothing declared, or a set nobody knows: UTF-8, a stray byte as Windows-1252.
        {"text/html", "\xe2\x82\xac \x80", QStringLiteral("\u20ac \u20ac")},
        {"text/html; charset=no-such-set", "caf\xe9", QStringLiteral("caf\u00e9")},
        {"text/html; charset=utf-8", "bad \xff byte", QStringLiteral("bad \u00ff byte")},
    };
    for (const auto& [type, body, expected] : cases)
        EXPECT_EQ(SourceFetch::decodePage(body, type), expected) << type.constData();
}

TEST(SourceFetchLogic, FailureReasons)
{
    const std::tuple<QNetworkReply::NetworkError, int, QString, QString> cases[] = {
        {QNetworkReply::HostNotFoundError, 0, {}, QStringLiteral("host not found")},
        {QNetworkReply::ConnectionRefusedError, 0, {}, QStringLiteral("connection refused")},
        {QNetworkReply::ContentNotFoundError, 404, QStringLiteral("Not Found"), QStringLiteral("HTTP 404 Not Found")},
        {QNetworkReply::InternalServerError, 500, {}, QStringLiteral("HTTP 500")},
        {QNetworkReply::SslHandshakeFailedError, 0, {}, QStringLiteral("TLS error")},
        {QNetworkReply::TooManyRedirectsError, 0, {}, QStringLiteral("too many redirects")},
        {QNetworkReply::InsecureRedirectError, 0, {}, QStringLiteral("redirect from https to http refused")},
        {QNetworkReply::OperationCanceledError, 0, {}, QStringLiteral("no answer from the server")},
        {QNetworkReply::RemoteHostClosedError, 0, {}, QStringLiteral("the server closed the connection")},
        {QNetworkReply::ProxyNotFoundError, 0, {}, QStringLiteral("proxy error")},
        {QNetworkReply::UnknownContentError, 0, {}, QStringLiteral("network error")},
    };
    for (const auto& [error, status, phrase, expected] : cases)
        EXPECT_EQ(SourceFetch::failureReason(error, status, phrase), expected) << int(error);
    EXPECT_EQ(SourceFetch::failureMessage(QStringLiteral("HTTP 404")), QStringLiteral("The page could not be fetched: HTTP 404"));
}

TEST(PageFetchTest, AgainstALocalServer)
{
    PageServer server;
    PageFetch fetch;
    fetch.idleTimeout = 1500;

    Outcome got = fetchNow(fetch, server.url("/latin"));
    EXPECT_TRUE(got.ok);
    EXPECT_EQ(got.body, latinPage);
    EXPECT_EQ(got.type, QByteArray("text/html; charset=\"ISO-8859-1\""));

    got = fetchNow(fetch, server.url("/moved"));
    EXPECT_TRUE(got.ok) << "two redirects, the second absolute";
    EXPECT_EQ(got.body, latinPage);

    got = fetchNow(fetch, server.url("/binary"));
    EXPECT_TRUE(got.ok);
    EXPECT_EQ(got.body.size(), 255);

    const std::pair<const char*, QString> failures[] = {
        {"/missing", QStringLiteral("HTTP 404 Not Found")},
        {"/loop", QStringLiteral("too many redirects")},
        {"/silent", QStringLiteral("no answer from the server")},
    };
    for (const auto& [path, reason] : failures) {
        got = fetchNow(fetch, server.url(path));
        EXPECT_FALSE(got.ok) << path;
        EXPECT_EQ(got.reason, reason) << path;
        EXPECT_TRUE(got.body.isEmpty());
    }

    // A port nobody listens on.
    quint16 closedPort = 0;
    {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost, 0);
        closedPort = probe.serverPort();
    }
    got = fetchNow(fetch, QStringLiteral("http://127.0.0.1:%1/").arg(closedPort));
    EXPECT_EQ(got.reason, QStringLiteral("connection refused"));

    // TLS spoken to a server that has none.
    got = fetchNow(fetch, QStringLiteral("https://127.0.0.1:%1/").arg(server.port()));
    EXPECT_EQ(got.reason, QStringLiteral("TLS error"));

    // A page that never ends stops at the limit instead of eating the memory.
    fetch.maxBytes = 2 * 1024 * 1024;
    got = fetchNow(fetch, server.url("/endless"));
    EXPECT_EQ(got.reason, QStringLiteral("the page is larger than 2 MB"));
    EXPECT_FALSE(fetch.running());
}

TEST(PageFetchTest, CancelEndsAFetchAtOnce)
{
    PageServer server;
    PageFetch fetch;
    QSignalSpy done(&fetch, &PageFetch::done), failed(&fetch, &PageFetch::failed);
    fetch.start(QUrl(server.url("/endless")));
    EXPECT_TRUE(fetch.running());
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.requests == 1; }, 10000));
    fetch.cancel();
    EXPECT_FALSE(fetch.running());
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toString(), QStringLiteral("cancelled"));
    fetch.cancel();
    QTest::qWait(0);
    EXPECT_EQ(failed.count(), 1) << "a second cancel has nothing to end";
    EXPECT_EQ(done.count(), 0);
}

namespace {
class SourcePageTest : public WindowTest {
protected:
    void SetUp() override
    {
        // The scratch files go to a folder of this test, where they can be counted.
        oldTemp = qgetenv("TMPDIR");
        qputenv("TMPDIR", folder.file(QStringLiteral("tmp")).toLocal8Bit());
        QDir().mkpath(folder.file(QStringLiteral("tmp")));
        startWithoutPage();
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        qputenv("TMPDIR", oldTemp);
    }
    sourcepage* open()
    {
        frmMain::instance()->MenuClick(QStringLiteral("From Internet"));
        auto* w = loadedForm<sourcepage>();
        EXPECT_NE(w, nullptr);
        if (w) {
            EXPECT_TRUE(w->isVisible());
        }
        return w;
    }
    static QList<frmDocument*> pages()
    {
        QList<frmDocument*> out;
        for (QMdiSubWindow* sub : frmMain::instance()->findChild<QMdiArea*>()->subWindowList())
            if (auto* doc = qobject_cast<frmDocument*>(sub->widget()))
                out.append(doc);
        return out;
    }
    static QString status() { return frmMain::instance()->findChild<QLabel*>(QStringLiteral("Panel1"))->text(); }
    // Starts a fetch and waits until it has ended one way or the other.
    void grab(sourcepage* w, const QString& address)
    {
        w->Text1->setText(address);
        w->Command1->click();
        EXPECT_TRUE(QTest::qWaitFor([w] { return !w->fetch()->running(); }, 20000));
    }
    QStringList scratchFiles() const { return QDir(folder.file(QStringLiteral("tmp"))).entryList(QDir::Files); }

    QByteArray oldTemp;
    PageServer server;
};
}

TEST_F(SourcePageTest, FetchedPagesBecomeNewUnsavedWindows)
{
    sourcepage* w = open();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("Velloro 2002 Source Grabber"));
    EXPECT_EQ(w->Label3->text(), QStringLiteral("Inactive"));
    saveShot(w, QStringLiteral("sourcepage"));

    // The state as the new window arrives: the download is complete, the text not yet loaded.
    QStringList statesAtNewWindow;
    QObject::connect(&DocumentEvents::instance(), &DocumentEvents::documentAdded, w,
                     [&](DocumentWindow*) { statesAtNewWindow.append(w->Label3->text()); });

    w->Text1->setText(server.url("/latin"));
    w->Command1->click();
    EXPECT_EQ(w->Label3->text(), QStringLiteral("Downloading..."));
    EXPECT_FALSE(w->Command1->isEnabled()) << "one fetch at a time";
    ASSERT_TRUE(QTest::qWaitFor([&] { return pages().size() == 1; }, 20000));
    EXPECT_EQ(statesAtNewWindow, QStringList{QStringLiteral("DownLoad Complete!")});
    EXPECT_EQ(w->Label3->text(), QStringLiteral("Inactive"));
    EXPECT_TRUE(w->Command1->isEnabled());
    frmDocument* first = pages().at(0);
    EXPECT_EQ(first->Caption(), server.url("/latin"));
    EXPECT_EQ(first->CodeMax1()->text(), QStringLiteral("<html><body>caf\u00e9</body></html>"));
    EXPECT_TRUE(first->tempaddress()->text().isEmpty()) << "it counts as unsaved";
    EXPECT_EQ(frmMain::instance()->ActiveForm(), first);
    EXPECT_TRUE(scratchFiles().isEmpty()) << scratchFiles().join(QLatin1Char(' ')).toStdString();

    // A second fetch, the charset in the page this time, gives a window of its own.
    grab(w, server.url("/meta"));
    ASSERT_EQ(pages().size(), 2);
    EXPECT_EQ(pages().at(1)->CodeMax1()->text().right(22), QStringLiteral("\u201cquoted\u201d</body></html>"));
    EXPECT_EQ(pages().at(1)->Caption(), server.url("/meta"));
    grab(w, server.url("/utf8"));
    ASSERT_EQ(pages().size(), 3);
    EXPECT_EQ(pages().at(2)->CodeMax1()->text(), QStringLiteral("<p>na\u00efve \u20ac</p>"));
    // Bytes that are no text at all still arrive, each invalid byte as Windows-1252.
    grab(w, server.url("/binary"));
    ASSERT_EQ(pages().size(), 4);
    const QString binary = pages().at(3)->CodeMax1()->text();
    EXPECT_EQ(binary.size(), 255);
    EXPECT_EQ(binary.right(2), QStringLiteral("\u00fe\u00ff"));
    EXPECT_EQ(binary.at(0x80 - 1), QChar(0x20ac));
    EXPECT_TRUE(scratchFiles().isEmpty());
}

TEST_F(SourcePageTest, AFailedFetchSaysWhyAndLeavesTheState)
{
    sourcepage* w = open();
    ASSERT_NE(w, nullptr);
    const std::pair<QString, QString> cases[] = {
        {server.url("/missing"), QStringLiteral("The page could not be fetched: HTTP 404 Not Found")},
        {server.url("/loop"), QStringLiteral("The page could not be fetched: too many redirects")},
        {QString(), QStringLiteral("The page could not be fetched: not a web address")},
        {QStringLiteral("http://"), QStringLiteral("The page could not be fetched: not a web address")},
        {QStringLiteral("http://127.0.0.1 /a b.htm"), QStringLiteral("The page could not be fetched: not a web address")},
    };
    for (const auto& [address, message] : cases) {
        w->Label3->setText(QStringLiteral("Inactive"));
        grab(w, address);
        EXPECT_EQ(w->Label3->text(), QStringLiteral("Downloading...")) << address.toStdString();
        EXPECT_EQ(status(), message) << address.toStdString();
        EXPECT_TRUE(w->Command1->isEnabled());
    }
    EXPECT_TRUE(pages().isEmpty());
    EXPECT_TRUE(prompts.prompts().isEmpty()) << "no message box";
}

TEST_F(SourcePageTest, CloseCancelsARunningFetch)
{
    sourcepage* w = open();
    ASSERT_NE(w, nullptr);
    w->Text1->setText(server.url("/silent"));
    w->Command1->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.requests == 1; }, 10000));
    EXPECT_TRUE(w->fetch()->running());
    w->Command2->click();
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(w->fetch()->running());
    EXPECT_EQ(status(), QStringLiteral("The page could not be fetched: cancelled"));
    QTest::qWait(50);
    EXPECT_TRUE(pages().isEmpty());

    // Opened again, it fetches as before.
    w = open();
    grab(w, server.url("/latin"));
    EXPECT_EQ(pages().size(), 1);
}

TEST_F(SourcePageTest, FullScreenPreviewOfAPage)
{
    frmDocument* doc = newPage(QStringLiteral("<a href=\"b.htm\">b</a>"));
    auto* button = doc->findChild<QToolButton*>(QStringLiteral("SmartNetButton3"));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isEnabled());
    button->click();
    auto* full = loadedForm<FullPreview>();
    ASSERT_NE(full, nullptr);
    EXPECT_TRUE(full->isVisible());
    EXPECT_EQ(full->windowTitle(), QStringLiteral("Full Screen Preview"));
    EXPECT_EQ(full->WebBrowser1->LocationURL().toLocalFile(), folder.file(QStringLiteral("temp.html")))
        << "the unsaved page's preview file is loaded before the window shows";
    EXPECT_EQ(full->SmartNetButton1->text(), QStringLiteral("Close"));
    EXPECT_EQ(full->SmartNetButton5->text(), QStringLiteral("Back"));
    EXPECT_EQ(full->SmartNetButton4->text(), QStringLiteral("Forward"));
    EXPECT_EQ(full->SmartNetButton1->palette().color(QPalette::Button), QColor(193, 210, 238));

    // The browser's status text: the hint after a load, a hovered link's address, "" on leaving.
    const std::pair<QString, QString> statuses[] = {
        {QStringLiteral("Done"), QStringLiteral("Smart Link Preview [Roll Over Links]")},
        {QStringLiteral("file:///tmp/b.htm"), QStringLiteral("file:///tmp/b.htm")},
        {QString(), QString()},
    };
    for (const auto& [text, shown] : statuses) {
        Q_EMIT full->WebBrowser1->StatusTextChange(text);
        EXPECT_EQ(full->linkpreview->text(), shown) << text.toStdString();
        if (text == QLatin1String("Done"))
            saveShot(full, QStringLiteral("FullPreview"));
    }
    // The page window's own preview label says the same.
    Q_EMIT doc->WebBrowser1()->StatusTextChange(QStringLiteral("Done"));
    EXPECT_EQ(doc->linkpreview()->text(), QStringLiteral("Smart Link Preview [Roll Over Links]"));

    // Back and Forward walk the browser's history.
    folder.write(QStringLiteral("a.htm"), "<p>a</p>");
    folder.write(QStringLiteral("b.htm"), "<p>b</p>");
    const QUrl a = QUrl::fromLocalFile(folder.file(QStringLiteral("a.htm")));
    const QUrl b = QUrl::fromLocalFile(folder.file(QStringLiteral("b.htm")));
    QList<QUrl> loads;
    QObject::connect(full->WebBrowser1, &WebBrowser::NavigateComplete, full, [&](const QUrl& u) { loads.append(u); });
    full->WebBrowser1->Navigate(a.toLocalFile());
    ASSERT_TRUE(QTest::qWaitFor([&] { return loads.contains(a); }, 30000));
    full->WebBrowser1->Navigate(b.toLocalFile());
    ASSERT_TRUE(QTest::qWaitFor([&] { return loads.contains(b); }, 30000));
    full->SmartNetButton5->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return full->WebBrowser1->LocationURL() == a; }, 30000));
    full->SmartNetButton4->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return full->WebBrowser1->LocationURL() == b; }, 30000));

    full->SmartNetButton1->click();
    EXPECT_FALSE(full->isVisible());
    full->show();
    EXPECT_EQ(full->linkpreview->text(), QStringLiteral("Smart Link Preview")) << "each showing starts from the default";
}
