#include "shell/Options.h"

#include "colour/ColourSwatch.h"
#include "platform/App.h"
#include "platform/CheckValue.h"
#include "platform/ControlChanges.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/Commands.h"
#include "services/Settings.h"
#include "shell/Startup.h"
#include "shell/frmMain.h"
#include "shell/modMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
using Look::named;

QLabel* wrapped(const QString& text, QWidget* parent)
{
    auto* l = new QLabel(text, parent);
    l->setWordWrap(true);
    return l;
}


}

QString detailsPath() { return App::userFile(QStringLiteral("Options/Details.dat")); }

Options::Options(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Options"));
    resize(640, 430);
    buildPages();
    // The controls are the settings; the rest of the program reads them as values.
    onAnyControlChange(this, [this] { Settings::setDetails(values()); });
}

void Options::buildPages()
{
    auto* outer = new QVBoxLayout(this);
    auto* body = new QHBoxLayout;
    outer->addLayout(body, 1);

    Tree = named(new QTreeWidget(this), QStringLiteral("Tree"));
    Tree->setHeaderHidden(true);
    Tree->setFixedWidth(170);
    body->addWidget(Tree);

    auto* pages = new QVBoxLayout;
    body->addLayout(pages, 1);

    // Welcome
    frstart = Look::headedFrame(QStringLiteral("frstart"), QStringLiteral("Options"), this);
    frstart->layout()->addWidget(wrapped(QStringLiteral("You can change the program settings from this point, use the menu bar on the left to navigate."), frstart));
    frstart->layout()->addWidget(wrapped(QStringLiteral("Click \"Apply\" to save the changes."), frstart));

    // Start up
    frstartup = Look::headedFrame(QStringLiteral("frstartup"), QStringLiteral("Start Up"), this);
    {
        auto* form = new QFormLayout;
        ToolTip = named(new QCheckBox(QStringLiteral("Enable Tooltip Box"), frstartup), QStringLiteral("ToolTip"));
        SSTART = named(new QComboBox(frstartup), QStringLiteral("SSTART"));
        SSTART->setEditable(true);
        carot = named(new QLineEdit(frstartup), QStringLiteral("carot"));
        SFORM = named(new QCheckBox(QStringLiteral("Create a \"WebPage\"  on startup"), frstartup), QStringLiteral("SFORM"));
        WEBFOLDER = named(new QLineEdit(frstartup), QStringLiteral("WEBFOLDER"));
        ETAG = named(new QCheckBox(QStringLiteral("Enable Tag Automatic colors"), frstartup), QStringLiteral("ETAG"));
        CSS = named(new QCheckBox(QStringLiteral("Enable CSS (Style sheets )"), frstartup), QStringLiteral("CSS"));
        LNEW = named(new QCheckBox(QStringLiteral("Load \"StartUp\" window at startup"), frstartup), QStringLiteral("LNEW"));
        Combo2 = named(new QComboBox(frstartup), QStringLiteral("Combo2"));
        Combo2->setEditable(true);
        Combo2->addItems({QStringLiteral("HTML"), QStringLiteral("XML"), QStringLiteral("Java"), QStringLiteral("Basic"),
                          QStringLiteral("SQL"), QStringLiteral("Pascal"), QStringLiteral("<none>")});
        Combo2->setCurrentText(QStringLiteral("HTML"));
        form->addRow(ToolTip);
        form->addRow(QStringLiteral("Start Window State"), SSTART);
        form->addRow(QStringLiteral("Carot Startup Chr No"), carot);
        form->addRow(SFORM);
        form->addRow(QStringLiteral("Change Default File directory"), WEBFOLDER);
        form->addRow(ETAG);
        form->addRow(CSS);
        form->addRow(LNEW);
        form->addRow(QStringLiteral("Default Syntax"), Combo2);
        static_cast<QVBoxLayout*>(frstartup->layout())->addLayout(form);
    }

    // FTP
    frftp = Look::headedFrame(QStringLiteral("frftp"), QStringLiteral("FTP"), this);
    {
        frftp->layout()->addWidget(wrapped(QStringLiteral("Here you can save your FTP upload information to make it quicker when using the Velloro 2002 [This section is frozen, click below to create Multiple profile's]"), frftp));
        auto* form = new QFormLayout;
        ftpadd = named(new QLineEdit(frftp), QStringLiteral("ftpadd"));
        ftpuser = named(new QLineEdit(frftp), QStringLiteral("ftpuser"));
        ftppass = named(new QLineEdit(frftp), QStringLiteral("ftppass"));
        ftppass->setEchoMode(QLineEdit::Password);
        form->addRow(QStringLiteral("FTP Address"), ftpadd);
        form->addRow(QStringLiteral("User Name"), ftpuser);
        form->addRow(QStringLiteral("Password"), ftppass);
        static_cast<QVBoxLayout*>(frftp->layout())->addLayout(form);
        auto* row = new QHBoxLayout;
        SmartNetButton2 = Look::faceButton(QStringLiteral("SmartNetButton2"), QStringLiteral("Clear"), frftp);
        Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("Create FTP Profiles"), frftp);
        row->addWidget(SmartNetButton2);
        row->addWidget(Command3);
        row->addStretch();
        static_cast<QVBoxLayout*>(frftp->layout())->addLayout(row);
        connect(SmartNetButton2, &QPushButton::clicked, this, Event([this] {
            ftpadd->clear();
            ftpuser->clear();
            ftppass->clear();
        }));
        connect(Command3, &QPushButton::clicked, this, Event([] { showForm(QStringLiteral("ftpUsers")); }));
    }

    // Colour
    frcolour = Look::headedFrame(QStringLiteral("frcolour"), QStringLiteral("Colour"), this);
    {
        frcolour->layout()->addWidget(wrapped(QStringLiteral("These are the three custom colours available from the ColorLab. You can set the three which are fired at startup by choosing them in the colour lab, Press the button to go there."), frcolour));
        auto* grid = new QGridLayout;
        Text2 = named(new QLineEdit(frcolour), QStringLiteral("Text2"));
        Text3 = named(new QLineEdit(frcolour), QStringLiteral("Text3"));
        Text4 = named(new QLineEdit(frcolour), QStringLiteral("Text4"));
        Shape6 = new ColourSwatch(QStringLiteral("Shape6"), frcolour);
        Shape5 = new ColourSwatch(QStringLiteral("Shape5"), frcolour);
        Shape4 = new ColourSwatch(QStringLiteral("Shape4"), frcolour);
        const QList<std::tuple<QString, QLineEdit*, ColourSwatch*>> rows = {
            {QStringLiteral("Pre-set 1"), Text2, Shape6}, {QStringLiteral("Pre-set 2"), Text3, Shape5},
            {QStringLiteral("Pre-set 3"), Text4, Shape4}};
        int r = 0;
        for (const auto& [caption, text, swatch] : rows) {
            grid->addWidget(new QLabel(caption, frcolour), r, 0);
            grid->addWidget(text, r, 1);
            grid->addWidget(swatch, r, 2);
            ++r;
        }
        static_cast<QVBoxLayout*>(frcolour->layout())->addLayout(grid);
        Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Colour Lab"), frcolour);
        frcolour->layout()->addWidget(Command1);
        connect(Command1, &QPushButton::clicked, this, Event([] { showForm(QStringLiteral("cfinderform")); }));
    }

    // Headings
    frheading = Look::headedFrame(QStringLiteral("frheading"), QStringLiteral("Headings"), this);
    {
        auto* grid = new QGridLayout;
        for (int i = 0; i < 6; ++i) {
            HeadingFont[i] = named(new QLineEdit(frheading), QStringLiteral("HeadingFont%1").arg(i + 1));
            HeadingSize[i] = named(new QLineEdit(frheading), QStringLiteral("HeadingSize%1").arg(i + 1));
            HeadingFont[i]->setReadOnly(true);
            HeadingSize[i]->setReadOnly(true);
            HeadingSize[i]->setMaximumWidth(60);
            grid->addWidget(new QLabel(QStringLiteral("Heading %1").arg(i + 1), frheading), i, 0);
            grid->addWidget(HeadingFont[i], i, 1);
            grid->addWidget(HeadingSize[i], i, 2);
        }
        static_cast<QVBoxLayout*>(frheading->layout())->addLayout(grid);
        auto* row = new QHBoxLayout;
        Combo4 = named(new QComboBox(frheading), QStringLiteral("Combo4"));
        Combo4->setEditable(true);
        Combo4->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                          QStringLiteral("5"), QStringLiteral("6")});
        Combo1 = named(new QComboBox(frheading), QStringLiteral("Combo1"));
        Combo1->setEditable(true);
        Combo3 = named(new QComboBox(frheading), QStringLiteral("Combo3"));
        Combo3->setEditable(true);
        Combo3->addItems({QStringLiteral("8"), QStringLiteral("10"), QStringLiteral("12"), QStringLiteral("14"),
                          QStringLiteral("18"), QStringLiteral("24"), QStringLiteral("36")});
        Command6 = Look::faceButton(QStringLiteral("Command6"), QStringLiteral("Change"), frheading);
        row->addWidget(new QLabel(QStringLiteral("Heading"), frheading));
        row->addWidget(Combo4);
        row->addWidget(Combo1, 1);
        row->addWidget(Combo3);
        row->addWidget(Command6);
        static_cast<QVBoxLayout*>(frheading->layout())->addLayout(row);
        connect(Command6, &QPushButton::clicked, this, Event([this] { changeHeading(); }));
    }

    // Tags
    frtag = Look::headedFrame(QStringLiteral("frtag"), QStringLiteral("Tag's"), this);
    {
        frtag->layout()->addWidget(wrapped(QStringLiteral("This Feature is currently disabled, due to a revamp, you can set the editor properties when an active document is open, Right Click and choose \"Editor Options\". There you can change all colours and settings."), frtag));
        auto* row = new QHBoxLayout;
        systype = named(new QComboBox(frtag), QStringLiteral("systype"));
        systype->setEditable(true);
        systype->addItems({QStringLiteral("HTML"), QStringLiteral("XML"), QStringLiteral("Java"), QStringLiteral("Basic"),
                           QStringLiteral("SQL"), QStringLiteral("Pascal"), QStringLiteral("<none>")});
        Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Choose"), frtag);
        Shape3 = new ColourSwatch(QStringLiteral("Shape3"), frtag);
        tagc = named(new QLineEdit(QStringLiteral("\"#0000FF\""), frtag), QStringLiteral("tagc"));
        row->addWidget(new QLabel(QStringLiteral("Syntax Type"), frtag));
        row->addWidget(systype);
        row->addWidget(Command2);
        row->addWidget(Shape3);
        row->addWidget(tagc);
        static_cast<QVBoxLayout*>(frtag->layout())->addLayout(row);
        connect(Command2, &QPushButton::clicked, this, Event([this] { chooseTagColour(); }));
    }

    // File extensions
    frmExtension = Look::headedFrame(QStringLiteral("frmExtension"), QStringLiteral("File Extension's"), this);
    {
        frmExtension->layout()->addWidget(wrapped(QStringLiteral("You can choose the file extensions the file Open and Save dialogs show by entering your own extensions below, simple add a , then the extension like ,.htm"), frmExtension));
        txtSaveEx = named(new QLineEdit(frmExtension), QStringLiteral("txtSaveEx"));
        txtOpenEx = named(new QLineEdit(frmExtension), QStringLiteral("txtOpenEx"));
        frmExtension->layout()->addWidget(new QLabel(QStringLiteral("Save Dialog Extensions"), frmExtension));
        frmExtension->layout()->addWidget(txtSaveEx);
        frmExtension->layout()->addWidget(new QLabel(QStringLiteral("Open Dialog Extensions"), frmExtension));
        frmExtension->layout()->addWidget(txtOpenEx);
    }

    // Save
    frsave = Look::headedFrame(QStringLiteral("frsave"), QStringLiteral("Save"), this);
    frsave->layout()->addWidget(wrapped(QStringLiteral("Press the Save button below to save current options, some settings will not work until Velloro 2002 has been restarted."), frsave));
    Label31 = named(new QLabel(frsave), QStringLiteral("Label31"));
    frsave->layout()->addWidget(Label31);

    for (QFrame* f : frames()) {
        static_cast<QVBoxLayout*>(f->layout())->addStretch();
        pages->addWidget(f);
    }

    auto* buttons = new QHBoxLayout;
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Close"), this);
    SmartNetButton3 = Look::faceButton(QStringLiteral("SmartNetButton3"), QStringLiteral("Apply"), this);
    buttons->addStretch();
    buttons->addWidget(SmartNetButton3);
    buttons->addWidget(SmartNetButton1);
    outer->addLayout(buttons);
    connect(SmartNetButton1, &QPushButton::clicked, this, &QWidget::hide);
    connect(SmartNetButton3, &QPushButton::clicked, this, Event([this] { ApplyDetails(); }));
    connect(Tree, &QTreeWidget::itemClicked, this, Event([this](QTreeWidgetItem* item) { nodeClicked(item); }));

    // The controls' design values; the file's values replace them at start-up.
    setValues(DetailsFile::designValues());
}

QList<QFrame*> Options::frames() const
{
    return {frstart, frstartup, frftp, frcolour, frheading, frtag, frmExtension, frsave};
}

void Options::Form_Load()
{
    struct Node { const char* text; const char* key; };
    static const Node nodes[] = {{"Start Up", "frstartup"}, {"FTP", "frftp"}, {"Colour", "frcolour"},
                                 {"Headings", "frheading"}, {"Tag's", "frtag"}, {"File Extension's", "frmEx"}};
    Tree->clear();
    auto* root = new QTreeWidgetItem(Tree, {QStringLiteral("Options")});
    root->setData(0, Qt::UserRole, QStringLiteral("root"));
    for (const Node& n : nodes) {
        auto* item = new QTreeWidgetItem(root, {QString::fromLatin1(n.text)});
        item->setData(0, Qt::UserRole, QString::fromLatin1(n.key));
    }
    Tree->expandAll();
    Tree->setStyleSheet(QStringLiteral("QTreeWidget { background-color: %1; color: white; }").arg(Look::heading.name()));
    Combo1->clear();
    Combo1->addItems(QFontDatabase::families());
    Combo1->setCurrentText(QStringLiteral("Arial"));
    // Buttons that lead to windows this build does not have stay disabled.
    Command1->setEnabled(Forms::hasFactory(QStringLiteral("cfinderform")));
    Command3->setEnabled(Forms::hasFactory(QStringLiteral("ftpUsers")));
    showPage(QStringLiteral("root"));
}

void Options::nodeClicked(QTreeWidgetItem* item)
{
    showPage(item->data(0, Qt::UserRole).toString());
}

void Options::showPage(const QString& key)
{
    static const QHash<QString, QString> frameOfKey = {
        {QStringLiteral("root"), QStringLiteral("frstart")}, {QStringLiteral("frstartup"), QStringLiteral("frstartup")},
        {QStringLiteral("frftp"), QStringLiteral("frftp")}, {QStringLiteral("frcolour"), QStringLiteral("frcolour")},
        {QStringLiteral("frheading"), QStringLiteral("frheading")}, {QStringLiteral("frtag"), QStringLiteral("frtag")},
        {QStringLiteral("frmEx"), QStringLiteral("frmExtension")}, {QStringLiteral("frsave"), QStringLiteral("frsave")}};
    const QString wanted = frameOfKey.value(key);
    if (wanted.isEmpty())
        return;
    for (QFrame* f : frames())
        f->setVisible(f->objectName() == wanted);
}

QString Options::visiblePage() const
{
    for (QFrame* f : frames())
        if (!f->isHidden())
            return f->objectName();
    return {};
}

void Options::changeHeading()
{
    bool ok = false;
    const int level = Combo4->currentText().toInt(&ok);
    if (!ok || level < 1 || level > 6 || Combo4->currentText() != QString::number(level))
        return;
    HeadingFont[level - 1]->setText(Combo1->currentText());
    HeadingSize[level - 1]->setText(Combo3->currentText());
}

void Options::chooseTagColour()
{
    chooseColourInto(tagc, Shape3, true);
}

DetailsRecord Options::values() const
{
    DetailsRecord r;
    r.CSS = checkValue(CSS);
    r.ETAG = checkValue(ETAG);
    r.LNEW = checkValue(LNEW);
    r.SFORM = checkValue(SFORM);
    r.SSTART = SSTART->currentText();
    r.WEBFOLDER = WEBFOLDER->text();
    r.carot = carot->text();
    r.systype = systype->currentText();
    r.Shape6 = Shape6->BackColor();
    r.Text2 = Text2->text();
    r.Shape5 = Shape5->BackColor();
    r.Text3 = Text3->text();
    r.Shape4 = Shape4->BackColor();
    r.Text4 = Text4->text();
    for (int i = 0; i < 6; ++i) {
        r.HeadingFont[i] = HeadingFont[i]->text();
        r.HeadingSize[i] = HeadingSize[i]->text();
    }
    r.txtSaveEx = txtSaveEx->text();
    r.txtOpenEx = txtOpenEx->text();
    r.ToolTip = checkValue(ToolTip);
    return r;
}

void Options::setValues(const DetailsRecord& r)
{
    setCheckValue(CSS, r.CSS);
    setCheckValue(ETAG, r.ETAG);
    setCheckValue(LNEW, r.LNEW);
    setCheckValue(SFORM, r.SFORM);
    if (SSTART->count() == 0)
        SSTART->addItems({QStringLiteral("Maximized"), QStringLiteral("Minimized"), QStringLiteral("Normal")});
    SSTART->setCurrentText(r.SSTART);
    WEBFOLDER->setText(r.WEBFOLDER);
    carot->setText(r.carot);
    systype->setCurrentText(r.systype);
    Shape6->setBackColor(r.Shape6);
    Text2->setText(r.Text2);
    Shape5->setBackColor(r.Shape5);
    Text3->setText(r.Text3);
    Shape4->setBackColor(r.Shape4);
    Text4->setText(r.Text4);
    for (int i = 0; i < 6; ++i) {
        HeadingFont[i]->setText(r.HeadingFont[i]);
        HeadingSize[i]->setText(r.HeadingSize[i]);
    }
    txtSaveEx->setText(r.txtSaveEx);
    txtOpenEx->setText(r.txtOpenEx);
    setCheckValue(ToolTip, r.ToolTip);
    Settings::setDetails(values());
}

void Options::ApplyDetails()
{
    Label31->setText(QStringLiteral("Status :: Saving Data ..."));
    const QString path = detailsPath();
    TextFiles::createIfMissing(path);
    QString error;
    if (!TextFiles::writeText(path, DetailsFile::saveText(values()), &error))
        throw RuntimeError::pathFileAccess(QStringLiteral("ApplyDetails"));
    Label31->setText(QStringLiteral("Status :: Saved"));
    hide();
}

bool LoadDetails()
{
    const QString path = detailsPath();
    if (!TextFiles::exists(path)) {
        TextFiles::createIfMissing(path);
        ResetDetails();
        return false;
    }
    bool ok = false;
    const QByteArray bytes = TextFiles::readBytes(path, &ok);
    if (!ok)
        throw RuntimeError::pathFileAccess(QStringLiteral("LoadDetails"));
    const DetailsRecord r = DetailsFile::parse(TextFiles::decode(bytes));
    form<Options>()->setValues(r);
    frmMain::instance()->setStatusText(1, QStringLiteral("Settings and Options Loaded Succesfully"));
    return true;
}

void ResetDetails()
{
    const QString path = detailsPath();
    TextFiles::createIfMissing(path);
    Options* o = form<Options>();
    std::array<QString, 6> fonts, sizes;
    for (int i = 0; i < 6; ++i) {
        fonts[i] = o->HeadingFont[i]->text();
        sizes[i] = o->HeadingSize[i]->text();
    }
    if (!TextFiles::writeText(path, DetailsFile::resetText(fonts, sizes)))
        throw RuntimeError::pathFileAccess(QStringLiteral("ResetDetails"));
    MsgBox(QStringLiteral("Settings have been reset, application will needed to be reset. This may be due to first time use of the program."), Style::Critical);
    CloseAllWindows();
}

void ApplyStartWindowState()
{
    const QString state = form<Options>()->SSTART->currentText();
    frmMain* main = frmMain::instance();
    if (state == QLatin1String("Maximized"))
        main->setWindowState(Qt::WindowMaximized);
    else if (state == QLatin1String("Minimized"))
        main->setWindowState(Qt::WindowMinimized);
}
