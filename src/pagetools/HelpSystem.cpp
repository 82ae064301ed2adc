#include "pagetools/HelpSystem.h"

#include "pagetools/IndexPanel.h"
#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/WebBrowser.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

HelpSystem::HelpSystem(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("HelpSystem"));
    setWindowTitle(QStringLiteral("Velloro 2002 Help System"));
    resize(960, 660);

    // A page's row is its file name less the last four characters (the ".htm").
    index = new IndexPanel(QStringLiteral("Help Files"), [](const QString& file) { return file.left(file.size() - 4); }, this);
    SmartNetButton6 = Look::faceButton(QStringLiteral("SmartNetButton6"), QStringLiteral("Refresh Help List"), this);
    SmartNetButton3 = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Help"), this);
    index->column()->addWidget(SmartNetButton6);
    index->column()->addWidget(SmartNetButton3);
    index->setFixedWidth(260);

    Web1 = Look::named(new WebBrowser(this), QStringLiteral("Web1"));
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Home"), this);
    SmartNetButton5 = Look::faceButton(QStringLiteral("SmartNetButton5"), QStringLiteral("Back"), this);
    SmartNetButton4 = Look::faceButton(QStringLiteral("SmartNetButton4"), QStringLiteral("Forward"), this);
    auto* page = new QGroupBox(QStringLiteral("Current Open Help File"), this);
    auto* pageColumn = new QVBoxLayout(page);
    auto* navigation = new QHBoxLayout;
    navigation->addWidget(SmartNetButton5);
    navigation->addWidget(SmartNetButton4);
    navigation->addWidget(SmartNetButton1);
    navigation->addStretch();
    pageColumn->addLayout(navigation);
    pageColumn->addWidget(Web1, 1);

    auto* outer = new QHBoxLayout(this);
    outer->addWidget(index);
    outer->addWidget(page, 1);

    for (QPushButton* b : {SmartNetButton1, SmartNetButton3, SmartNetButton4, SmartNetButton5, SmartNetButton6})
        b->setAutoDefault(false);
    connect(index, &IndexPanel::rowActivated, this, Event([this] { List2_DblClick(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { showPage(QStringLiteral("Index")); }));
    connect(SmartNetButton3, &QPushButton::clicked, this, Event([this] { SmartNetButton3_Click(); }));
    connect(SmartNetButton4, &QPushButton::clicked, this, Event([this] { Web1->GoForward(); }));
    connect(SmartNetButton5, &QPushButton::clicked, this, Event([this] { Web1->GoBack(); }));
    connect(SmartNetButton6, &QPushButton::clicked, this, Event([this] { fillLists(); }));
}

void HelpSystem::Form_Load()
{
    fillLists();
    showPage(QStringLiteral("Index"));
}

QString HelpSystem::folder() { return App::path() + QStringLiteral("/Documents/Help"); }

void HelpSystem::showPage(const QString& name) { Web1->Navigate(folder() + QLatin1Char('/') + name + QStringLiteral(".htm")); }

void HelpSystem::fillLists() { index->fill(folder()); }

void HelpSystem::List2_DblClick()
{
    const QString row = index->chosenRow();
    if (!row.isEmpty())
        showPage(row);
}

void HelpSystem::SmartNetButton3_Click()
{
    MsgBox(QStringLiteral("This is where all help files will be for Velloro 2002\r\n"
                          "You can enter nothing into the search box to get all of the help files."));
}
