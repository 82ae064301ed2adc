#include "report/frmReport.h"

#include "platform/App.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/Twips.h"
#include "report/ReportEngine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
using Look::named;

const QString initialDetails = QStringLiteral("Details About : ");


QIcon rowIcon(bool passed)
{
    const QString file = App::path() + (passed ? QStringLiteral("/Options/Images/Ok.ico") : QStringLiteral("/Options/Images/Info.ico"));
    return QIcon(file);
}

// The hourglass for as long as a run lasts, also when it ends by an error.
struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};
}

frmReport::frmReport(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("HTML Report Checker [Beta 1.0.3]"));
    auto* outer = new QVBoxLayout(this);

    auto* title = named(new QLabel(QStringLiteral("Velloro 2002 HTML Report Checker"), this), QStringLiteral("Label30"));
    QFont big = title->font();
    big.setBold(true);
    big.setPointSizeF(big.pointSizeF() * 1.4);
    title->setFont(big);
    auto* intro = named(new QLabel(QStringLiteral(
        "Here you can check your html code for various errors. If you have opened this dialog by importing code, "
        "ie code is allready in the code window, just click \"Start\". Alternatively you can load another page by "
        "clicking the \"Open\" button then clicking \"Start\" to process the page. Click on the list bottom left once "
        "completed for a more detailed description of each check."), this), QStringLiteral("Label1"));
    intro->setWordWrap(true);
    for (QLabel* l : {title, intro})
        l->setStyleSheet(QStringLiteral("color: white;"));
    outer->addWidget(title);
    outer->addWidget(intro);

    auto* codeLabel = new QLabel(QStringLiteral("Code Window :"), this);
    CodeMax1 = named(new CodeMax(this), QStringLiteral("CodeMax1"));
    CodeMax1->setMinimumSize(560, 220);
    txtlocation = named(new QLineEdit(this), QStringLiteral("txtlocation"));
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Start"), this);
    Command1->setToolTip(QStringLiteral("Start the HTML check"));
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Open"), this);
    SmartNetButton1->setToolTip(QStringLiteral("Open a document to check html"));
    outer->addWidget(codeLabel);
    outer->addWidget(CodeMax1, 1);
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(txtlocation, 1);
    fileRow->addWidget(SmartNetButton1);
    fileRow->addWidget(Command1);
    outer->addLayout(fileRow);

    auto* results = new QGridLayout;
    auto* flexLabel = new QLabel(QStringLiteral("Click to view summary of results ..."), this);
    auto* detailsLabel = new QLabel(QStringLiteral("Explanation :"), this);
    Flex = named(new QTableWidget(0, 3, this), QStringLiteral("Flex"));
    Flex->verticalHeader()->hide();
    Flex->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Flex->setSelectionBehavior(QAbstractItemView::SelectRows);
    Flex->setSelectionMode(QAbstractItemView::SingleSelection);
    RichBox = named(new QTextEdit(this), QStringLiteral("RichBox"));
    RichBox->setReadOnly(true);
    RichBox->setPlainText(initialDetails);
    results->addWidget(flexLabel, 0, 0);
    results->addWidget(detailsLabel, 0, 1);
    results->addWidget(Flex, 1, 0);
    results->addWidget(RichBox, 1, 1);
    results->setColumnStretch(0, 3);
    results->setColumnStretch(1, 2);
    outer->addLayout(results, 1);

    auto* stateRow = new QHBoxLayout;
    auto* actionLabel = new QLabel(QStringLiteral("Proccess :"), this);
    lblAction = named(new QLabel(QStringLiteral("Idle"), this), QStringLiteral("lblAction"));
    PBar = named(new QProgressBar(this), QStringLiteral("PBar"));
    PBar->setValue(0);
    stateRow->addWidget(actionLabel);
    stateRow->addWidget(lblAction);
    stateRow->addWidget(PBar, 1);
    outer->addLayout(stateRow);
    for (QLabel* l : {codeLabel, flexLabel, detailsLabel, actionLabel, lblAction})
        l->setStyleSheet(QStringLiteral("color: white;"));

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    connect(Flex, &QTableWidget::cellClicked, this, Event([this](int row, int) { Flex_Click(row); }));
    resize(760, 640);
}

void frmReport::Form_Load()
{
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Look::heading);
    setPalette(pal);
    Look::editorColours(CodeMax1);
    clearFlex(QStringLiteral("Search Value ..."));
}

void frmReport::clearFlex(const QString& header)
{
    Flex->setRowCount(0);
    Flex->setHorizontalHeaderLabels({QString(), header, QString()});
    Flex->setColumnWidth(0, twipsToPixels(500));
    Flex->setColumnWidth(1, twipsToPixels(4000));
    // The third column is the store of the explanations, never shown.
    Flex->setColumnHidden(2, true);
}

void frmReport::Command1_Click()
{
    if (CodeMax1->text().isEmpty()) {
        MsgBox(QStringLiteral("No Data to Report on."), 16);
        return;
    }
    lblAction->setText(QStringLiteral("Active ..."));
    WaitCursor hourglass;
    clearFlex(Flex->horizontalHeaderItem(1) ? Flex->horizontalHeaderItem(1)->text() : QString());

    // The report compares small letters only, and shows the user the text it read.
    CodeMax1->ExecuteCmd(CodeMax::SelectAll);
    CodeMax1->ExecuteCmd(CodeMax::LowerCase);
    const QString text = CodeMax1->text();

    QElapsedTimer sinceRepaint;
    sinceRepaint.start();
    const auto progress = [&](qsizetype value, qsizetype maximum) {
        // The bar holds an int; a huge page is shown in proportion.
        const double scale = maximum > INT_MAX ? double(INT_MAX) / double(maximum) : 1.0;
        PBar->setRange(0, int(double(maximum) * scale));
        PBar->setValue(int(double(value) * scale));
        if (sinceRepaint.elapsed() > 50 || value == 0) {
            PBar->repaint();
            sinceRepaint.restart();
        }
    };
    const QList<Report::Row> rows = Report::report(text, progress);

    clearFlex(QStringLiteral("Search Value's"));
    Flex->setRowCount(int(rows.size()));
    for (int i = 0; i < rows.size(); ++i) {
        const Report::Row& r = rows[i];
        auto* icon = new QTableWidgetItem;
        icon->setIcon(rowIcon(r.passed));
        icon->setTextAlignment(Qt::AlignCenter);
        icon->setData(Qt::UserRole, r.passed);
        Flex->setItem(i, 0, icon);
        Flex->setItem(i, 1, new QTableWidgetItem(r.caption));
        Flex->setItem(i, 2, new QTableWidgetItem(r.explanation));
    }
    lblAction->setText(QStringLiteral("Idle"));
}

void frmReport::SmartNetButton1_Click()
{
    const QString path = prompts().openFile(QString(), QStringLiteral("Web Pages (*.htm *.html);;All Files (*)"), QString());
    if (path.isEmpty())
        return;
    txtlocation->setText(path);
    CodeMax1->OpenFile(path);
}

void frmReport::Flex_Click(int row)
{
    if (row < 0 || row >= Flex->rowCount())
        return;
    const QTableWidgetItem* caption = Flex->item(row, 1);
    const QTableWidgetItem* explanation = Flex->item(row, 2);
    RichBox->clear();
    RichBox->setPlainText(initialDetails + (caption ? caption->text() : QString()) + QStringLiteral("\r\n\r\n")
                          + (explanation ? explanation->text() : QString()));
}
