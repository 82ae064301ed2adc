#include "wizards/TableWizard.h"

#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "wizards/CellTableText.h"
#include "wizards/Html.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

namespace {
// A new grid: the heading row and column and two rows of two cells.
constexpr int initialRows = 3, initialCols = 3;
}

TableWizard::TableWizard(QWidget* parent) : WizardDialog(QStringLiteral("TableWizard :"), Refusal::None, parent)
{
    setMinimumWidth(480);
    Flex = Look::named(new QTableWidget(this), QStringLiteral("Flex"));
    // Row 0 and column 0 are the grid's headings, drawn as such, so the grid's own ones go.
    Flex->horizontalHeader()->hide();
    Flex->verticalHeader()->hide();
    Flex->setSelectionMode(QAbstractItemView::SingleSelection);
    Flex->setMinimumHeight(160);
    rows()->addRow(Flex);
    lbrows = Look::named(new QLabel(this), QStringLiteral("lbrows"));
    lbcols = Look::named(new QLabel(this), QStringLiteral("lbcols"));
    resize(initialRows, initialCols);

    txtinput = Look::named(new QLineEdit(this), QStringLiteral("txtinput"));
    Command1 = WizardRows::withButton(rows(), QStringLiteral("Cell :"), txtinput, QStringLiteral("Command1"),
                                      QStringLiteral("Update"));
    ckAuto = Look::named(new QCheckBox(QStringLiteral("Auto Update Current Cell"), this), QStringLiteral("ckAuto"));
    rows()->addRow(QString(), ckAuto);

    // Rows and columns: the count, "Add" and "Delete".
    const struct {
        const char* label;
        QLabel* count;
        const char* add;
        const char* remove;
        QPushButton** addButton;
        QPushButton** removeButton;
        int rowStep, colStep;
    } counts[] = {
        {"Rows :", lbrows, "Command2", "Command3", &Command2, &Command3, 1, 0},
        {"Columns :", lbcols, "Command4", "Command5", &Command4, &Command5, 0, 1},
    };
    for (const auto& c : counts) {
        auto* row = new QHBoxLayout;
        row->addWidget(c.count, 1);
        *c.addButton = Look::faceButton(QString::fromLatin1(c.add), QStringLiteral("Add"), this);
        *c.removeButton = Look::faceButton(QString::fromLatin1(c.remove), QStringLiteral("Delete"), this);
        for (QPushButton* b : {*c.addButton, *c.removeButton}) {
            b->setAutoDefault(false);
            row->addWidget(b);
        }
        const int dr = c.rowStep, dc = c.colStep;
        connect(*c.addButton, &QPushButton::clicked, this, Event([this, dr, dc] { resize(Rows() + dr, Cols() + dc); }));
        connect(*c.removeButton, &QPushButton::clicked, this, Event([this, dr, dc] { resize(Rows() - dr, Cols() - dc); }));
        rows()->addRow(QString::fromLatin1(c.label), row);
    }

    style = WizardRows::tableStyle(rows(), QStringLiteral("Command7"), QStringLiteral("Command8"), QStringLiteral("Change"));
    txtWidth = style.txtWidth;
    coAlign = style.coAlign;
    txtbo = style.txtbo.text;
    txtba = style.txtba.text;
    Command7 = style.txtbo.choose;
    Command8 = style.txtba.choose;

    txtresult = Look::named(new QPlainTextEdit(this), QStringLiteral("txtresult"));
    txtresult->setReadOnly(true);
    txtresult->setMaximumHeight(90);
    rows()->addRow(QStringLiteral("Result :"), txtresult);

    Command6 = addLoadButton(QStringLiteral("Command6"), QStringLiteral("Insert"));

    connect(Flex, &QTableWidget::cellClicked, this, Event([this](int r, int c) {
        txtinput->setText(TextMatrix(r, c));
        txtinput->setFocus();
    }));
    connect(Flex, &QTableWidget::currentCellChanged, this, [this] { showCounts(); });
    connect(Command1, &QPushButton::clicked, this, Event([this] { update(); }));
    connect(txtinput, &QLineEdit::textChanged, this, Event([this] {
        if (ckAuto->isChecked())
            update();
    }));
}

int TableWizard::Rows() const { return Flex->rowCount(); }
int TableWizard::Cols() const { return Flex->columnCount(); }

QString TableWizard::TextMatrix(int row, int col) const
{
    const QTableWidgetItem* item = Flex->item(row, col);
    return item ? item->text() : QString();
}

void TableWizard::update()
{
    const int r = Flex->currentRow(), c = Flex->currentColumn();
    if (r < 0 || c < 0)
        return;
    Flex->setCurrentCell(r, c, QItemSelectionModel::ClearAndSelect);
    if (QTableWidgetItem* item = Flex->item(r, c))
        item->setText(txtinput->text());
}

void TableWizard::resize(int rows, int cols)
{
    if (rows < 1 || cols < 1)
        return;
    const int oldRows = Rows(), oldCols = Cols();
    Flex->setRowCount(rows);
    Flex->setColumnCount(cols);
    // Every cell holds an item, so that it can be edited in place and read back.
    const QBrush headingFace = palette().button();
    for (int r = 0; r < rows; ++r)
        for (int c = (r < oldRows ? oldCols : 0); c < cols; ++c) {
            auto* item = new QTableWidgetItem;
            if (r == 0 || c == 0)
                item->setBackground(headingFace);
            Flex->setItem(r, c, item);
        }
    showCounts();
}

void TableWizard::showCounts()
{
    lbrows->setText(QString::number(Rows()));
    lbcols->setText(QString::number(Cols()));
}

void TableWizard::beforeDelivery()
{
    QList<QStringList> cells;
    cells.reserve(Rows());
    for (int r = 0; r < Rows(); ++r) {
        QStringList row;
        for (int c = 0; c < Cols(); ++c)
            row << TextMatrix(r, c);
        cells << row;
    }
    result = CellTableText::grid(style.fields(), cells);
    txtresult->setPlainText(result);
}

QString TableWizard::fragment() const { return result + Html::crlf; }
