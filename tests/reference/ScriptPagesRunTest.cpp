// The script pages in a real browser engine (offscreen): each loads without a script error,
// and a few of them are checked for doing what their names say.
#include "reference/ReferenceData.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <gtest/gtest.h>

namespace {

class ScriptPage : public QWebEnginePage {
public:
    explicit ScriptPage(QWebEngineProfile* profile) : QWebEnginePage(profile) {}
    QStringList errors;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString&) override
    {
        if (level == ErrorMessageLevel)
            errors << QStringLiteral("line %1: %2").arg(line).arg(message);
    }
    // No page may open a box on loading; one that does is a fault.
    void javaScriptAlert(const QUrl&, const QString& msg) override { errors << QStringLiteral("alert: ") + msg; }
    bool javaScriptConfirm(const QUrl&, const QString& msg) override
    {
        errors << QStringLiteral("confirm: ") + msg;
        return false;
    }
};

class ScriptPagesRun : public ::testing::Test {
protected:
    // A profile that keeps nothing on disk.
    QWebEngineProfile profile;

    std::unique_ptr<ScriptPage> load(const QString& key)
    {
        auto page = std::make_unique<ScriptPage>(&profile);
        QSignalSpy finished(page.get(), &QWebEnginePage::loadFinished);
        page->load(QUrl::fromLocalFile(QStringLiteral(VELLORO_SOURCE_DATA "/")
                                       + ReferenceData::scriptPageRelativePath(key)));
        EXPECT_TRUE(finished.wait(20000)) << key.toStdString() << " did not load";
        EXPECT_TRUE(!finished.isEmpty() && finished.first().at(0).toBool()) << key.toStdString();
        // Let the first timers of the page run.
        QTest::qWait(300);
        return page;
    }

    static QVariant run(QWebEnginePage* page, const QString& script)
    {
        QVariant result;
        bool done = false;
        page->runJavaScript(script, [&](const QVariant& v) { result = v; done = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 10000));
        return result;
    }
};

}  // namespace

TEST_F(ScriptPagesRun, EveryPageLoadsWithoutAScriptError)
{
    for (const QString& key : ReferenceData::scriptPageKeys()) {
        auto page = load(key);
        EXPECT_EQ(page->errors.join(QLatin1Char('\n')).toStdString(), "") << key.toStdString();
        EXPECT_EQ(page->title(), key);
    }
}

TEST_F(ScriptPagesRun, DigitalClockShowsTheTime)
{
    auto page = load(QStringLiteral("Digital Clock"));
    const QString time = run(page.get(), QStringLiteral("document.getElementById('clock').textContent")).toString();
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d$")).match(time).hasMatch()) << time.toStdString();
}

TEST_F(ScriptPagesRun, StockCalculatorWorksOutTheProfit)
{
    auto page = load(QStringLiteral("Stock Calculator"));
    // 100 shares bought at 12.50 and sold at 14.20, 9.95 a deal: 1259.95 in, 1410.05 out.
    const QString result = run(page.get(), QStringLiteral("document.getElementById('result').innerText")).toString();
    EXPECT_TRUE(result.contains(QRegularExpression(QStringLiteral("Profit: 150[.,]10 \\(11[.,]91 %\\)")))) << result.toStdString();
    EXPECT_TRUE(result.contains(QRegularExpression(QStringLiteral("Break-even selling price: 12[.,]70")))) << result.toStdString();
    // A sale below cost is a loss.
    const QString loss = run(page.get(), QStringLiteral(
        "document.getElementById('sell').value = '10'; calculate(); document.getElementById('result').innerText")).toString();
    EXPECT_TRUE(loss.contains(QRegularExpression(QStringLiteral("Loss: 269[.,]90")))) << loss.toStdString();
}

TEST_F(ScriptPagesRun, AirportCalculatorMeasuresAlongTheGlobe)
{
    auto page = load(QStringLiteral("Airport Calculator"));
    // London Heathrow to New York JFK is about 5540 km by the great circle.
    const int km = run(page.get(), QStringLiteral(
        "Math.round(distance(AIRPORTS.find(a => a[0] == 'LHR'), AIRPORTS.find(a => a[0] == 'JFK')))")).toInt();
    EXPECT_NEAR(km, 5540, 20);
    EXPECT_EQ(run(page.get(), QStringLiteral("distance(AIRPORTS[0], AIRPORTS[0])")).toDouble(), 0.0);
}

TEST_F(ScriptPagesRun, SpreadsheetComputesFormulasAndTotals)
{
    auto page = load(QStringLiteral("Microsoft Excel"));
    const QString cells = run(page.get(), QStringLiteral(
        "raw.A1 = '2'; raw.A2 = '3'; raw.B1 = '=A1*10+SUM(A1:A2)'; raw.B2 = '=(A2-1)/4'; raw.C1 = '=C2'; raw.C2 = '=C1';"
        "raw.D1 = 'text'; raw.E1 = '=A1+'; refresh();"
        "[inputs.B1.value, inputs.B2.value, inputs.C1.value, inputs.D1.value, inputs.E1.value,"
        " ...[1, 2, 3].map(i => document.getElementById('totals').cells[i].textContent)].join('|')")).toString();
    EXPECT_EQ(cells, QStringLiteral("25|0.5|#ERR|text|#ERR|5|25.5|0"));
    EXPECT_TRUE(page->errors.isEmpty()) << page->errors.join(QLatin1Char('\n')).toStdString();
}

int main(int argc, char** argv)
{
    // Headless, and a Chromium that runs as root in a container, as for every other test.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS"))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu");
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
