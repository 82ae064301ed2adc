// The browser control: the engine is started only when the control is first used.
#include "common/TestSupport.h"

#include "platform/WebBrowser.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

namespace {
class WebBrowserTest : public ::testing::Test {
protected:
    ScriptedPrompts prompts;
};

// The page view inside the control, reached by name as any other control.
QObject* pageViewOf(WebBrowser& b) { return b.findChild<QWidget*>(QStringLiteral("WebEngineView")); }
}

TEST_F(WebBrowserTest, NewControlHasNoEngineUntilUsed)
{
    QWidget window;
    auto* browser = new WebBrowser(&window);
    EXPECT_EQ(browser->objectName(), QStringLiteral("WebBrowser1"));
    EXPECT_FALSE(browser->isCreated());
    EXPECT_EQ(pageViewOf(*browser), nullptr);
    EXPECT_EQ(browser->LocationURL(), QUrl());
    EXPECT_DOUBLE_EQ(browser->zoom(), 1.0);

    // A control in a window that is never shown stays without an engine.
    QCoreApplication::processEvents();
    EXPECT_FALSE(browser->isCreated());
}

TEST_F(WebBrowserTest, NavigateCreatesTheViewAndReportsDone)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString page = dir.filePath(QStringLiteral("page.html"));
    {
        QFile f(page);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("<html><body><p>Hello</p></body></html>\r\n");
    }

    WebBrowser browser;
    QSignalSpy status(&browser, &WebBrowser::StatusTextChange);
    QSignalSpy complete(&browser, &WebBrowser::NavigateComplete);
    browser.Navigate(page);
    ASSERT_TRUE(browser.isCreated()) << "navigating starts the engine";
    EXPECT_NE(pageViewOf(browser), nullptr);
    EXPECT_EQ(browser.LocationURL(), QUrl::fromLocalFile(page));

    EXPECT_TRUE(QTest::qWaitFor([&] { return status.contains(QVariantList{QStringLiteral("Done")}); }, 5000))
        << "no \"Done\" after loading a local page";
    ASSERT_GE(complete.count(), 1);
    EXPECT_EQ(complete.last().at(0).toUrl(), QUrl::fromLocalFile(page));
}

TEST_F(WebBrowserTest, ShowingCreatesTheViewAndZoomStaysWithinBounds)
{
    QWidget window;
    auto* browser = new WebBrowser(&window);
    window.resize(400, 300);
    window.show();
    EXPECT_TRUE(browser->isCreated()) << "the first show starts the engine";
    QObject* view = pageViewOf(*browser);
    ASSERT_NE(view, nullptr);

    const double start = browser->zoom();
    browser->zoomIn();
    EXPECT_GT(browser->zoom(), start);
    EXPECT_DOUBLE_EQ(view->property("zoomFactor").toDouble(), browser->zoom()) << "the page follows the zoom";
    browser->zoomOut();
    EXPECT_NEAR(browser->zoom(), start, 1e-9) << "one step in and one out come back";

    // The page view accepts factors from 0.25 to 5: the control never goes beyond.
    for (int i = 0; i < 100; ++i)
        browser->zoomIn();
    const double most = browser->zoom();
    EXPECT_LE(most, 5.0);
    EXPECT_GT(most, 4.0);
    browser->zoomOut();
    EXPECT_LT(browser->zoom(), most) << "the first step back from the top is felt at once";
    for (int i = 0; i < 100; ++i)
        browser->zoomOut();
    const double least = browser->zoom();
    EXPECT_GE(least, 0.25);
    EXPECT_LT(least, 0.5);
    EXPECT_NEAR(view->property("zoomFactor").toDouble(), least, 1e-9);
    browser->zoomIn();
    EXPECT_GT(browser->zoom(), least);
}
