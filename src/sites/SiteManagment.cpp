#include "sites/SiteManagment.h"

#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "sites/ProjectPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

using Look::named;

namespace {
const QString defaultTitle = QStringLiteral("New_Site");

// A wizard page: its heading, a line that says what to do, and room for its fields.
QFrame* wizardPage(const QString& name, const QString& heading, const QString& line, QWidget* parent)
{
    QFrame* page = Look::headedFrame(name, heading, parent);
    if (!line.isEmpty()) {
        auto* text = new QLabel(line, page);
        text->setWordWrap(true);
        page->layout()->addWidget(text);
    }
    return page;
}

// The row of a page's step buttons, at the page's foot.
// The buttons of a page at its foot. The last one goes forward (Enter presses it) unless the
// page has no way on.
const char* const forwardProperty = "forward";
void stepRow(QFrame* page, const QList<QPushButton*>& buttons, bool forward = true)
{
    if (forward)
        buttons.last()->setProperty(forwardProperty, true);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* b : buttons)
        row->addWidget(b);
    auto* v = static_cast<QVBoxLayout*>(page->layout());
    v->addStretch();
    v->addLayout(row);
}

QCheckBox* tick(const QString& name, const QString& caption, QWidget* parent, bool readOnly = false)
{
    auto* c = named(new QCheckBox(caption, parent), name);
    c->setChecked(true);
    // The home page, the frame set and the menu are part of every site.
    c->setEnabled(!readOnly);
    return c;
}
}

SiteManagment::SiteManagment(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Site Wizard"));
    auto* outer = new QVBoxLayout(this);
    outer->addWidget(Look::banner(QStringLiteral("Label1"), QStringLiteral("Site Wizard"), this));
    steps = new QStackedWidget(this);
    outer->addWidget(steps, 1);

    frmstep0 = wizardPage(QStringLiteral("frmstep0"), QStringLiteral("About ::"),
                          QStringLiteral("The Site Wizard makes a small web site in a new folder of its own.\n\n"
                                         "Give the site a title and a place, choose its type and the pages it "
                                         "should have. A Business or a Personal site is made from finished "
                                         "template pages: a frame set (Index.htm) that shows a menu page beside "
                                         "the home page (Main.htm), with a link in the menu for every page you "
                                         "tick. A Custom site is made of files you choose yourself.\n\n"
                                         "The wizard writes the project file SiteDetails.dat into the new folder "
                                         "and opens the site as your project. It never writes into a folder that "
                                         "is there already."),
                          steps);
    SmartNetButton10 = Look::faceButton(QStringLiteral("SmartNetButton10"), QStringLiteral("Next >>"), frmstep0);
    stepRow(frmstep0, {SmartNetButton10});

    frmstep1 = wizardPage(QStringLiteral("frmstep1"), QStringLiteral("Site Details ::"),
                          QStringLiteral("The site is made in a new folder named after its title, inside the location."), steps);
    auto* form = new QFormLayout;
    sitetitle = named(new QLineEdit(defaultTitle, frmstep1), QStringLiteral("sitetitle"));
    siteauthor = named(new QLineEdit(frmstep1), QStringLiteral("siteauthor"));
    sitedate = named(new QLineEdit(frmstep1), QStringLiteral("sitedate"));
    siteemail = named(new QLineEdit(frmstep1), QStringLiteral("siteemail"));
    sitetype = named(new QComboBox(frmstep1), QStringLiteral("sitetype"));
    sitelocation = named(new QLineEdit(frmstep1), QStringLiteral("sitelocation"));
    browseLocation = Look::faceButton(QStringLiteral("browseLocation"), QStringLiteral("...."), frmstep1);
    browseLocation->setToolTip(QStringLiteral("Choose the folder that will hold the site's folder"));
    auto* locationRow = new QHBoxLayout;
    locationRow->addWidget(sitelocation, 1);
    locationRow->addWidget(browseLocation);
    form->addRow(QStringLiteral("Site Title :"), sitetitle);
    form->addRow(QStringLiteral("Author :"), siteauthor);
    form->addRow(QStringLiteral("Date :"), sitedate);
    form->addRow(QStringLiteral("E-Mail :"), siteemail);
    form->addRow(QStringLiteral("Site Type :"), sitetype);
    form->addRow(QStringLiteral("Location :"), locationRow);
    static_cast<QVBoxLayout*>(frmstep1->layout())->addLayout(form);
    detailsBack = Look::faceButton(QStringLiteral("detailsBack"), QStringLiteral("<< Back"), frmstep1);
    detailsNextButton = Look::faceButton(QStringLiteral("detailsNextButton"), QStringLiteral("Next >>"), frmstep1);
    stepRow(frmstep1, {detailsBack, detailsNextButton});

    frmstep2B = tickPage(QStringLiteral("frmstep2B"), QStringLiteral("Business Pages ::"), QStringLiteral("BCheck"),
                         {"Home Page (always made)", "Services", "Portfolio", "Price/Quote", "About Us", "Contact Us"}, {0},
                         BCheck, &businessBack, &businessNext, QStringLiteral("business"));
    frmstep2p = tickPage(QStringLiteral("frmstep2p"), QStringLiteral("Personal Pages ::"), QStringLiteral("PCheck"),
                         {"Home Page (always made)", "Pictures", "About", "Hobbies", "Frame set Index.htm (always made)",
                          "Links", "Contact Me"},
                         {0, 4}, PCheck, &personalBack, &personalNext, QStringLiteral("personal"));

    frmcustom = wizardPage(QStringLiteral("frmcustom"), QStringLiteral("Custom Files ::"),
                           QStringLiteral("Add the files of the site. Each is copied into the new folder under its own name."), steps);
    Flex = named(new QTableWidget(0, 2, frmcustom), QStringLiteral("Flex"));
    Flex->setHorizontalHeaderLabels({QStringLiteral("Filename"), QStringLiteral("Location")});
    Flex->horizontalHeader()->setStretchLastSection(true);
    Flex->verticalHeader()->hide();
    Flex->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Flex->setSelectionBehavior(QAbstractItemView::SelectRows);
    frmcustom->layout()->addWidget(Flex);
    SmartNetButton13 = Look::faceButton(QStringLiteral("SmartNetButton13"), QStringLiteral("Add File ..."), frmcustom);
    SmartNetButton11 = Look::faceButton(QStringLiteral("SmartNetButton11"), QStringLiteral("<< Back"), frmcustom);
    SmartNetButton12 = Look::faceButton(QStringLiteral("SmartNetButton12"), QStringLiteral("Create Site >>"), frmcustom);
    stepRow(frmcustom, {SmartNetButton13, SmartNetButton11, SmartNetButton12});

    frmstep3 = wizardPage(QStringLiteral("frmstep3"), QStringLiteral("Creating The Site ::"), QString(), steps);
    ProgressBar1 = named(new QProgressBar(frmstep3), QStringLiteral("ProgressBar1"));
    ProgressBar1->setRange(0, 4);
    ProgressBar1->setValue(0);
    statusbar = named(new QLabel(QStringLiteral("Status :"), frmstep3), QStringLiteral("statusbar"));
    statusbar->setWordWrap(true);
    statusbar->setTextInteractionFlags(Qt::TextSelectableByMouse);
    frmstep3->layout()->addWidget(ProgressBar1);
    frmstep3->layout()->addWidget(statusbar);
    progressBack = Look::faceButton(QStringLiteral("progressBack"), QStringLiteral("<< Back"), frmstep3);
    progressBack->setToolTip(QStringLiteral("Back to the site's details"));
    stepRow(frmstep3, {progressBack}, false);

    for (QFrame* page : {frmstep0, frmstep1, frmstep2B, frmstep2p, frmcustom, frmstep3})
        steps->addWidget(page);

    // The hidden work fields: the header lines of a loading project, the menu page's text.
    List1 = named(new QListWidget(this), QStringLiteral("List1"));
    List1->hide();
    createpage = named(new QPlainTextEdit(this), QStringLiteral("createpage"));
    createpage1 = named(new QPlainTextEdit(SiteGenerator::defaultMenuPage(), this), QStringLiteral("createpage1"));
    createpage->setPlainText(createpage1->toPlainText());
    createpage->hide();
    createpage1->hide();

    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Close"), this);
    bottom->addWidget(SmartNetButton1);
    outer->addLayout(bottom);

    connect(SmartNetButton10, &QPushButton::clicked, this, Event([this] { showStep(frmstep1); }));
    connect(detailsBack, &QPushButton::clicked, this, Event([this] { showStep(frmstep0); }));
    connect(detailsNextButton, &QPushButton::clicked, this, Event([this] { detailsNext(); }));
    connect(browseLocation, &QPushButton::clicked, this, Event([this] {
        const QString chosen = prompts().folder(QStringLiteral("Browse for Folder"),
                                                sitelocation->text().isEmpty() ? QDir::homePath() : sitelocation->text());
        if (!chosen.isEmpty())
            sitelocation->setText(chosen);
    }));
    for (QPushButton* back : {businessBack, personalBack, SmartNetButton11, progressBack})
        connect(back, &QPushButton::clicked, this, Event([this] { showStep(frmstep1); }));
    for (QPushButton* next : {businessNext, personalNext, SmartNetButton12})
        connect(next, &QPushButton::clicked, this, Event([this] {
            showStep(frmstep3);
            CreateSite();
        }));
    connect(SmartNetButton13, &QPushButton::clicked, this, Event([this] { SmartNetButton13_Click(); }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
    resize(560, 460);
}

QFrame* SiteManagment::tickPage(const QString& name, const QString& heading, const QString& prefix,
                                const QList<const char*>& captions, const QList<int>& alwaysMade, QCheckBox** boxes,
                                QPushButton** back, QPushButton** next, const QString& buttonPrefix)
{
    QFrame* page = wizardPage(name, heading, QStringLiteral("Tick the pages of the site. The menu links each ticked page."), steps);
    for (int i = 0; i < captions.size(); ++i) {
        boxes[i] = tick(prefix + QString::number(i + 1), QString::fromLatin1(captions[i]), page, alwaysMade.contains(i));
        page->layout()->addWidget(boxes[i]);
    }
    *back = Look::faceButton(buttonPrefix + QStringLiteral("Back"), QStringLiteral("<< Back"), page);
    *next = Look::faceButton(buttonPrefix + QStringLiteral("Next"), QStringLiteral("Create Site >>"), page);
    stepRow(page, {*back, *next});
    return page;
}

void SiteManagment::Form_Load()
{
    sitetype->addItems({QStringLiteral("Business"), QStringLiteral("Personal"), QStringLiteral("Custom")});
    showStep(frmstep0);
    sitedate->setText(QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
}

void SiteManagment::showStep(QFrame* page)
{
    steps->setCurrentWidget(page);
    progressBack->setVisible(false);
    for (QPushButton* b : findChildren<QPushButton*>())
        b->setDefault(b->parent() == page && b->property(forwardProperty).toBool());
}

void SiteManagment::detailsNext()
{
    const QString type = sitetype->currentText();
    if (type == QLatin1String("Personal"))
        showStep(frmstep2p);
    else if (type == QLatin1String("Business"))
        showStep(frmstep2B);
    else if (type == QLatin1String("Custom"))
        showStep(frmcustom);
}

void SiteManagment::SmartNetButton13_Click()
{
    const QString path = prompts().openFile({}, QStringLiteral("All Files (*)"), {});
    if (path.isEmpty())
        return;
    const int row = Flex->rowCount();
    Flex->insertRow(row);
    Flex->setItem(row, 0, new QTableWidgetItem(QFileInfo(path).fileName()));
    Flex->setItem(row, 1, new QTableWidgetItem(path));
}

SiteGenerator::Request SiteManagment::request() const
{
    SiteGenerator::Request r;
    r.details = {sitetitle->text(), siteauthor->text(), sitedate->text(), siteemail->text()};
    const QString type = sitetype->currentText();
    r.type = type == QLatin1String("Custom")     ? SiteGenerator::Type::Custom
             : type == QLatin1String("Personal") ? SiteGenerator::Type::Personal
                                                 : SiteGenerator::Type::Business;
    r.location = sitelocation->text();
    r.templates = App::path() + QStringLiteral("/Templates/Advanced/Sites");
    for (const SiteGenerator::Page& page : SiteGenerator::pages(r.type))
        if (auto* box = findChild<QCheckBox*>(page.tick))
            r.ticks.append(box->isChecked());
    for (int row = 0; row < Flex->rowCount(); ++row)
        r.customFiles.append(Flex->item(row, 1)->text());
    return r;
}

void SiteManagment::CreateSite()
{
    const SiteGenerator::Request r = request();
    ProgressBar1->setRange(0, 4);
    ProgressBar1->setValue(0);
    statusbar->setText(QStringLiteral("Status :"));
    const SiteGenerator::Outcome o = SiteGenerator::createSite(r, [this](int value) { ProgressBar1->setValue(value); });
    if (!o.ok) {
        statusbar->setText(QStringLiteral("Status : ") + o.problem);
        progressBack->setVisible(true);
        MsgBox(o.problem, Style::Exclamation, QStringLiteral(":: Velloro 2002 ::"));
        return;
    }
    createpage->clear();
    if (r.type != SiteGenerator::Type::Custom)
        statusbar->setText(QStringLiteral("Status : Completed Creation Proccess"));
    LoadProject(o.detailsFile);
}

void SiteManagment::LoadProject(const QString& path)
{
    bool ok = false;
    const QByteArray bytes = TextFiles::readBytes(path, &ok);
    // Read before anything changes: a file that can't be read leaves the panel as it was.
    if (!ok || QFileInfo(path).isDir())
        throw RuntimeError::fileNotFound(QStringLiteral("LoadProject"));
    const SiteFiles::Project project = SiteFiles::parse(bytes);
    List1->clear();
    List1->addItems(project.header);
    ProjectPanel::instance()->show(project, path);
}

void SiteManagment::SmartNetButton1_Click()
{
    statusbar->setText(QStringLiteral("Status :"));
    sitetitle->setText(defaultTitle);
    ProgressBar1->setValue(0);
    showStep(frmstep0);
    createpage->setPlainText(createpage1->toPlainText());
    hide();
}

void SiteManagment::reject()
{
    SmartNetButton1_Click();
}
