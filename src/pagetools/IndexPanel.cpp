#include "pagetools/IndexPanel.h"

#include "pagetools/QuickNotes.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/ListRows.h"
#include "platform/Look.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

IndexPanel::IndexPanel(const QString& title, std::function<QString(const QString&)> row, QWidget* parent)
    : QGroupBox(title, parent), rowOf(std::move(row))
{
    File1 = Look::named(new FileListBox(this), QStringLiteral("File1"));
    File1->hide();
    List1 = Look::named(new QListWidget(this), QStringLiteral("List1"));
    List1->hide();
    List2 = Look::named(new QListWidget(this), QStringLiteral("List2"));
    Text1 = Look::named(new QLineEdit(this), QStringLiteral("Text1"));
    SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("Search"), this);
    SmartNetButton2->setAutoDefault(false);
    Option1 = Look::named(new QRadioButton(QStringLiteral("Partial word"), this), QStringLiteral("Option1"));
    Option2 = Look::named(new QRadioButton(QStringLiteral("Exact Word"), this), QStringLiteral("Option2"));
    Option1->setChecked(true);
    Bar = Look::named(new QProgressBar(this), QStringLiteral("Bar"));
    Bar->setTextVisible(false);
    Bar->setMaximumHeight(12);

    layout = new QVBoxLayout(this);
    layout->addWidget(List2, 1);
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(Text1, 1);
    searchRow->addWidget(SmartNetButton2);
    layout->addLayout(searchRow);
    auto* options = new QHBoxLayout;
    options->addWidget(Option1);
    options->addWidget(Option2);
    options->addStretch();
    layout->addLayout(options);
    layout->addWidget(Bar);

    connect(SmartNetButton2, &QPushButton::clicked, this, Event([this] { search(); }));
    // Enter in the search box searches.
    connect(Text1, &QLineEdit::returnPressed, this, Event([this] { search(); }));
    connect(List2, &QListWidget::itemDoubleClicked, this, &IndexPanel::rowActivated);
}

void IndexPanel::fill(const QString& folder)
{
    File1->refresh();
    List1->clear();
    List2->clear();
    File1->setPath(folder);
    for (const QString& file : rowsOf(File1)) {
        List1->addItem(rowOf(file));
        List2->addItem(rowOf(file));
    }
}

void IndexPanel::search()
{
    const QStringList rows = rowsOf(List1);
    Bar->setRange(0, qMax(1, int(rows.size())));
    Bar->setValue(0);
    List2->clear();
    const auto match = Option2->isChecked() ? QuickNotes::Match::Exact : QuickNotes::Match::Partial;
    List2->addItems(QuickNotes::search(rows, Text1->text(), match));
    Bar->setValue(int(rows.size()));
}

QString IndexPanel::chosenRow() const
{
    const QListWidgetItem* row = List2->currentItem();
    return row ? row->text() : QString();
}
