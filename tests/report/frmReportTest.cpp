// The report window end to end: its controls, a run, the details of a clicked row, the file
// it opens, the empty-text stop box, and the web page window's button that fills it.
#include "common/TestSupport.h"

#include "documents/CodeDocumentWindow.h"
#include "documents/frmDocument.h"
#include "platform/CodeMax.h"
#include "platform/Forms.h"
#include "report/frmReport.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolButton>

namespace {
const QString appTitle = QStringLiteral("Velloro 2002");

class ReportWindowTest : public WindowTest {
protected:
    void SetUp() override { startWithoutPage(); }

    QWidget* report() { return Forms::get(QStringLiteral("frmReport")); }
    template <class W>
    W* control(const char* name)
    {
        auto* w = report()->findChild<W*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    QString cell(int row, int column)
    {
        QTableWidgetItem* item = control<QTableWidget>("Flex")->item(row, column);
        return item ? item->text() : QStringLiteral("<none>");
    }
    void start(const QString& text)
    {
        control<CodeMax>("CodeMax1")->setText(text);
        control<QPushButton>("Command1")->click();
    }
};
}

TEST_F(ReportWindowTest, ControlsAndTextsOnLoad)
{
    QWidget* w = report();
    ASSERT_NE(qobject_cast<frmReport*>(w), nullptr);
    EXPECT_EQ(w->windowTitle(), QStringLiteral("HTML Report Checker [Beta 1.0.3]"));
    EXPECT_EQ(control<QLabel>("Label30")->text(), QStringLiteral("Velloro 2002 HTML Report Checker"));
    EXPECT_EQ(control<QLabel>("Label1")->text(),
              QStringLiteral("Here you can check your html code for various errors. If you have opened this dialog by "
                             "importing code, ie code is allready in the code window, just click \"Start\". "
                             "Alternatively you can load another page by clicking the \"Open\" button then clicking "
                             "\"Start\" to process the page. Click on the list bottom left once completed for a more "
                             "detailed description of each check."));
    EXPECT_EQ(control<QPushButton>("Command1")->text(), QStringLiteral("Start"));
    EXPECT_EQ(control<QPushButton>("Command1")->toolTip(), QStringLiteral("Start the HTML check"));
    EXPECT_EQ(control<QPushButton>("SmartNetButton1")->text(), QStringLiteral("Open"));
    EXPECT_EQ(control<QPushButton>("SmartNetButton1")->toolTip(), QStringLiteral("Open a document to check html"));
    EXPECT_EQ(control<QLabel>("lblAction")->text(), QStringLiteral("Idle"));
    EXPECT_EQ(control<QTextEdit>("RichBox")->toPlainText(), QStringLiteral("Details About : "));
    EXPECT_TRUE(control<QLineEdit>("txtlocation")->text().isEmpty());
    EXPECT_EQ(w->palette().color(QPalette::Window), QColor(52, 129, 211));

    auto* flex = control<QTableWidget>("Flex");
    EXPECT_EQ(flex->columnCount(), 3);
    EXPECT_EQ(flex->rowCount(), 0);
    EXPECT_EQ(flex->horizontalHeaderItem(1)->text(), QStringLiteral("Search Value ..."));
    EXPECT_TRUE(flex->isColumnHidden(2));
    EXPECT_EQ(flex->columnWidth(1), 267);
    for (const char* label : {"Code Window :", "Click to view summary of results ...", "Explanation :", "Proccess :"}) {
        bool found = false;
        for (QLabel* l : w->findChildren<QLabel*>())
            found = found || l->text() == QString::fromLatin1(label);
        EXPECT_TRUE(found) << label;
    }
    saveShot(w, QStringLiteral("frmReport-load"));
}

TEST_F(ReportWindowTest, EmptyTextStopsWithABox)
{
    prompts.answerMsgBox(Answer::OK);
    start(QString());
    ASSERT_EQ(prompts.prompts().size(), 1);
    EXPECT_EQ(prompts.last().kind, QStringLiteral("MsgBox"));
    EXPECT_TRUE(isBox(prompts.last(), QStringLiteral("No Data to Report on."), 16, appTitle));
    EXPECT_EQ(control<QTableWidget>("Flex")->rowCount(), 0);
    EXPECT_EQ(control<QTableWidget>("Flex")->horizontalHeaderItem(1)->text(), QStringLiteral("Search Value ..."));
    EXPECT_EQ(control<QLabel>("lblAction")->text(), QStringLiteral("Idle"));
}

TEST_F(ReportWindowTest, RunFillsTheGridAndLowersTheEditor)
{
    // The bar moves while the label says the run is active and the hourglass shows.
    QStringList during;
    QObject::connect(control<QProgressBar>("PBar"), &QProgressBar::valueChanged, [&](int) {
        const QCursor* c = QApplication::overrideCursor();
        during << control<QLabel>("lblAction")->text() + QLatin1Char('|')
                      + QString::number(c ? int(c->shape()) : -1);
    });
    start(QStringLiteral("<HTML> <BODY>\r\n<B>bold</B> <IMG SRC=a.gif> </body> </html>"));
    EXPECT_TRUE(prompts.prompts().isEmpty());
    ASSERT_FALSE(during.isEmpty());
    for (const QString& d : during)
        EXPECT_EQ(d, QStringLiteral("Active ...|%1").arg(int(Qt::WaitCursor)));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(control<QLabel>("lblAction")->text(), QStringLiteral("Idle"));
    // Tokens: "", "<html>", "", "<body>", "<b>bold", "</b>", "", "<img", "src=a.gif>", "", "</body>", "", "</html>".
    EXPECT_EQ(control<QProgressBar>("PBar")->maximum(), 13);
    EXPECT_EQ(control<QProgressBar>("PBar")->value(), 13);
    EXPECT_EQ(control<CodeMax>("CodeMax1")->text(),
              QStringLiteral("<html> <body>\r\n<b>bold</b> <img src=a.gif> </body> </html>"));

    auto* flex = control<QTableWidget>("Flex");
    EXPECT_EQ(flex->horizontalHeaderItem(1)->text(), QStringLiteral("Search Value's"));
    ASSERT_EQ(flex->rowCount(), 16);
    EXPECT_EQ(cell(0, 1), QStringLiteral("Passed <html> tag Completion "));
    // The CR LF pair vanishes, but "<" still starts "<b>bold": only the end tag is seen.
    EXPECT_EQ(cell(1, 1), QStringLiteral("Passed <body> tag Completion "));
    EXPECT_EQ(cell(5, 1), QStringLiteral("Failed <b> tag Completion"));
    EXPECT_EQ(cell(5, 2), QStringLiteral("The search has failed to correctly find the same amount of <b> tags and </b> tags. "
                                         "The number should be the same, but you have 0 <b> and 1 </b> ends, check "
                                         "through the code and make sure you have the same amount."));
    EXPECT_EQ(cell(9, 1), QStringLiteral("Found 1 Images "));
    EXPECT_EQ(cell(15, 1), QStringLiteral("Check Completed Succesfully"));
    EXPECT_EQ(flex->item(0, 0)->data(Qt::UserRole).toBool(), true);
    EXPECT_EQ(flex->item(5, 0)->data(Qt::UserRole).toBool(), false);

    // A row click shows its caption and explanation.
    emit flex->cellClicked(9, 1);
    const QString details = control<QTextEdit>("RichBox")->toPlainText();
    EXPECT_EQ(details, QStringLiteral("Details About : Found 1 Images \n\nThe Search has foune 1 images in the document."));
    saveShot(report(), QStringLiteral("frmReport-run"));

    // A second run rebuilds all 16 rows.
    start(QStringLiteral("<title> x </title>"));
    ASSERT_EQ(flex->rowCount(), 16);
    EXPECT_EQ(cell(3, 1), QStringLiteral("Passed <title> tag Completion "));
    EXPECT_EQ(cell(0, 1), QStringLiteral("Failed <html> tag Completion "));
}

TEST_F(ReportWindowTest, OpenLoadsAFile)
{
    folder.write(QStringLiteral("page.htm"), "<html> <p> x </html>\r\n");
    prompts.answerOpenFile(folder.file(QStringLiteral("page.htm")));
    control<QPushButton>("SmartNetButton1")->click();
    EXPECT_EQ(prompts.last().kind, QStringLiteral("OpenFile"));
    EXPECT_EQ(control<QLineEdit>("txtlocation")->text(), folder.file(QStringLiteral("page.htm")));
    EXPECT_EQ(control<CodeMax>("CodeMax1")->text(), QStringLiteral("<html> <p> x </html>\r\n"));

    // A cancelled dialog changes nothing.
    prompts.answerOpenFile(QString());
    control<QPushButton>("SmartNetButton1")->click();
    EXPECT_EQ(control<QLineEdit>("txtlocation")->text(), folder.file(QStringLiteral("page.htm")));
    EXPECT_EQ(control<CodeMax>("CodeMax1")->text(), QStringLiteral("<html> <p> x </html>\r\n"));
}

TEST_F(ReportWindowTest, WebPageButtonCopiesItsText)
{
    frmDocument* doc = newPage(QStringLiteral("<html> <meta name=x> </html>"));
    QToolButton* button = doc->previewButton(QStringLiteral("SmartNetButton9"));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isEnabled());
    button->click();
    processEvents();
    QWidget* w = report();
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(control<CodeMax>("CodeMax1")->text(), QStringLiteral("<html> <meta name=x> </html>"));
    control<QPushButton>("Command1")->click();
    EXPECT_EQ(cell(14, 1), QStringLiteral("Found 1 META tag groups."));
    EXPECT_EQ(doc->CodeMax1()->text(), QStringLiteral("<html> <meta name=x> </html>"));
}
