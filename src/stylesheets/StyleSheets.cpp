#include "stylesheets/StyleSheets.h"

#include "colour/ColourSwatch.h"
#include "platform/App.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/WebBrowser.h"
#include "services/Commands.h"
#include "stylesheets/StyleSheetText.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
QLineEdit* field(QWidget* parent, const QString& name) { return Look::named(new QLineEdit(parent), name); }

QPushButton* button(QWidget* parent, const QString& name, const QString& caption)
{
    QPushButton* b = Look::faceButton(name, caption, parent);
    b->setAutoDefault(false);
    return b;
}

// The colour dialog into a field, as a bare web colour.
bool pickColour(QLineEdit* field) { return chooseColourInto(field, nullptr, false); }

// A box's text with the line ends files carry.
QString withCrLf(const QPlainTextEdit* box) { return box->toPlainText().replace(QLatin1Char('\n'), TextFiles::crlf); }
void setWithCrLf(QPlainTextEdit* box, QString text) { box->setPlainText(text.replace(TextFiles::crlf, QStringLiteral("\n"))); }

void writeOrFail(const QString& path, const QString& text)
{
    QString error;
    if (!TextFiles::writeBytes(path, TextFiles::encode(text), &error))
        throw RuntimeError(75, QStringLiteral("Path/File access error"));
}

struct Launchable {
    const char *caption, *window, *explanation;
};
constexpr Launchable apps[] = {
    {"Link 1 .css", "CSSform", "You can find a .css file and add a link in the current active document."},
    {"Link Several Pages", "StyleLink",
     "You can select as many html files as you want and 1 .css file,then velloro will link the .css file to all "
     "documents."},
    {"Create Simple .css", "CSSCREATE",
     "You can Create a simple css document by selecting default values or by entering in your own. This is a very "
     "mini version of the the below option. It is usefull for creating link colours."},
    {"Create + Edit Complex .css", "frmCSSCreate",
     "You can Create and Edit whole .css documeents, select and edit W3C standard CSS properties, features preview "
     "ability."},
    {"Create Coloured Scrollbar", "frmscrollbar",
     "You can Create the coloured scroll bars that you see on web sites both horizontal and verticaly. This feature "
     "makes it easy to select the properties colours and preview the end result. Then you can copy and paste it into "
     "your web pages with ease."},
};
constexpr int WindowRole = Qt::UserRole, ExplanationRole = Qt::UserRole + 1, KeyRole = Qt::UserRole + 2;

const char* const scrollbarLabels[7] = {"Scrollbar Face Color",      "Scrollbar Highlight Color",
                                        "Scrollbar Shadow Color",    "Scrollbar 3D Light Color",
                                        "Scrollbar Arrow Color",     "Scrollbar Track Color",
                                        "Scrollbar Dark Shadow Color"};
}

// --- CSS Central -------------------------------------------------------------------------------

CSSCentral::CSSCentral(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("CSSCentral"));
    setWindowTitle(QStringLiteral("CSS Central"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Look::banner(QStringLiteral("heading"), QStringLiteral("Velloro 2002 .CSS Launcher ..."), this));

    Tree = Look::named(new QTreeWidget(this), QStringLiteral("Tree"));
    Tree->setHeaderHidden(true);
    auto* root = new QTreeWidgetItem(Tree, {QStringLiteral("Available Apps")});
    root->setData(0, KeyRole, QStringLiteral("root"));
    for (const Launchable& a : apps) {
        auto* item = new QTreeWidgetItem(root, {QString::fromUtf8(a.caption)});
        item->setData(0, WindowRole, QString::fromLatin1(a.window));
        item->setData(0, ExplanationRole, QString::fromUtf8(a.explanation));
    }
    root->setExpanded(true);
    RichBox = Look::named(new QTextEdit(this), QStringLiteral("RichBox"));
    RichBox->setReadOnly(true);
    auto* middle = new QHBoxLayout;
    middle->addWidget(Tree, 1);
    middle->addWidget(RichBox, 1);
    layout->addLayout(middle, 1);

    note = Look::named(new QLabel(QStringLiteral("Choose Application on left , then click \"Start\" bottom right."), this),
                       QStringLiteral("note"));
    note->setWordWrap(true);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Start"), this);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(note, 1);
    bottom->addWidget(SmartNetButton1);
    layout->addLayout(bottom);
    resize(560, 340);

    connect(Tree, &QTreeWidget::currentItemChanged, this, Event([this](QTreeWidgetItem* item, QTreeWidgetItem*) {
        if (item)
            RichBox->setPlainText(QStringLiteral("Explanation:\n") + item->data(0, ExplanationRole).toString());
    }));
    connect(SmartNetButton1, &QPushButton::clicked, this, Event([this] { SmartNetButton1_Click(); }));
}

void CSSCentral::SmartNetButton1_Click()
{
    QTreeWidgetItem* item = Tree->currentItem();
    const QString window = item ? item->data(0, WindowRole).toString() : QString();
    if (window.isEmpty()) {
        MsgBox(QStringLiteral("You havnt selected an application to launch"));
        return;
    }
    // A window this build does not have yet starts nothing, like its menu key.
    if (Forms::hasFactory(window))
        showForm(window);
}

// --- the small sheet ---------------------------------------------------------------------------

CSSCREATE::CSSCREATE(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("CSSCREATE"));
    setWindowTitle(QStringLiteral("Create External Stlye Sheet"));
    auto* layout = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Type"), this), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Colour"), this), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Effect"), this), 0, 3);

    Combo1 = Look::named(new QComboBox(this), QStringLiteral("Combo1"));
    Text1 = field(this, QStringLiteral("Text1"));
    Command5 = button(this, QStringLiteral("Command5"), QStringLiteral("Colour"));
    Combo2 = Look::named(new QComboBox(this), QStringLiteral("Combo2"));
    Command1 = button(this, QStringLiteral("Command1"), QStringLiteral("Add"));
    Text2 = field(this, QStringLiteral("Text2"));
    Text3 = field(this, QStringLiteral("Text3"));
    Command6 = button(this, QStringLiteral("Command6"), QStringLiteral("Colour"));
    Combo3 = Look::named(new QComboBox(this), QStringLiteral("Combo3"));
    Command2 = button(this, QStringLiteral("Command2"), QStringLiteral("Add"));
    const QList<QWidget*> defaultRow{Combo1, Text1, Command5, Combo2, Command1};
    const QList<QWidget*> customRow{Text2, Text3, Command6, Combo3, Command2};
    for (int c = 0; c < defaultRow.size(); ++c) {
        grid->addWidget(defaultRow[c], 1, c);
        grid->addWidget(customRow[c], 2, c);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);

    layout->addWidget(new QLabel(QStringLiteral("Or enter data straight into this box :"), this));
    Text4 = Look::named(new QPlainTextEdit(this), QStringLiteral("Text4"));
    Text4->setTabChangesFocus(true);
    layout->addWidget(Text4, 1);
    layout->addWidget(new QLabel(QStringLiteral("Enter a destination and filename, like: c:\\Default.CSS"), this));
    Text5 = field(this, QStringLiteral("Text5"));
    layout->addWidget(Text5);
    Command3 = button(this, QStringLiteral("Command3"), QStringLiteral("Save"));
    Command4 = button(this, QStringLiteral("Command4"), QStringLiteral("Close"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command3);
    buttons->addWidget(Command4);
    layout->addLayout(buttons);
    resize(560, 420);

    connect(Command1, &QPushButton::clicked, this, Event([this] { Command1_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command3, &QPushButton::clicked, this, Event([this] { Command3_Click(); }));
    connect(Command4, &QPushButton::clicked, this, &QWidget::hide);
    connect(Command5, &QPushButton::clicked, this, Event([this] { pickColour(Text1); }));
    connect(Command6, &QPushButton::clicked, this, Event([this] { pickColour(Text3); }));
}

void CSSCREATE::Form_Load()
{
    Combo1->addItems(StyleSheetText::linkTypes());
    Combo2->addItems(StyleSheetText::effects());
    Combo3->addItems(StyleSheetText::effects());
}

QString CSSCREATE::sheet() const { return withCrLf(Text4); }

void CSSCREATE::append(const QString& type, const QString& colour, const QString& effect)
{
    setWithCrLf(Text4, sheet() + StyleSheetText::rule(type, colour, effect));
}

void CSSCREATE::Command1_Click() { append(Combo1->currentText(), Text1->text(), Combo2->currentText()); }

void CSSCREATE::Command2_Click()
{
    if (Text2->text().isEmpty()) {
        MsgBox(QStringLiteral("Enter a value to link the values with."), Style::Critical);
        return;
    }
    append(Text2->text(), Text3->text(), Combo3->currentText());
}

void CSSCREATE::Command3_Click()
{
    const QString path = Text5->text();
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("Enter a location and name for the style sheet!"), Style::Critical);
        return;
    }
    if (TextFiles::exists(path) &&
        MsgBox(QStringLiteral("File allready exists, would you like to Overwrite the document?"),
               Style::YesNoCancel + Style::Question, QStringLiteral(":: Velloro 2002 ::")) != Answer::Yes)
        return;
    writeOrFail(path, sheet());
    MsgBox(path + QStringLiteral(" Page Saved ::  "), Style::Information);
}

// --- the scroll bar block ----------------------------------------------------------------------

frmscrollbar::frmscrollbar(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmscrollbar"));
    setWindowTitle(QStringLiteral("Create ScrollBar Color Code"));
    auto* layout = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    auto* rows = new QFormLayout;
    for (int i = 0; i < 7; ++i) {
        Text[i] = field(this, QStringLiteral("Text%1").arg(i + 1));
        Pick[i] = button(this, QStringLiteral("Command%1").arg(i + 1), QStringLiteral("Choose"));
        auto* row = new QHBoxLayout;
        row->addWidget(Text[i], 1);
        row->addWidget(Pick[i]);
        rows->addRow(QString::fromLatin1(scrollbarLabels[i]), row);
        connect(Pick[i], &QPushButton::clicked, this, Event([this, i] {
            if (pickColour(Text[i]))
                Command10_Click();
        }));
    }
    left->addLayout(rows);
    stylecode = Look::named(new QPlainTextEdit(this), QStringLiteral("stylecode"));
    stylecode->setReadOnly(true);
    left->addWidget(stylecode, 1);
    Command10 = button(this, QStringLiteral("Command10"), QStringLiteral("Preview"));
    Command8 = button(this, QStringLiteral("Command8"), QStringLiteral("Copy"));
    Command9 = button(this, QStringLiteral("Command9"), QStringLiteral("Close"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command10);
    buttons->addStretch();
    buttons->addWidget(Command8);
    buttons->addWidget(Command9);
    left->addLayout(buttons);
    layout->addLayout(left, 1);

    // The rest of the preview page: enough text to need a scroll bar.
    temprest = Look::named(new QPlainTextEdit(this), QStringLiteral("temprest"));
    QString body = QStringLiteral("</head>\n<body>\n");
    for (int i = 1; i <= 60; ++i)
        body += QStringLiteral("<p>Scroll bar test line %1 of 60.</p>\n").arg(i);
    temprest->setPlainText(body + QStringLiteral("</body>\n</html>"));
    temprest->hide();
    WebBrowser1 = Look::named(new WebBrowser(this), QStringLiteral("WebBrowser1"));
    layout->addWidget(WebBrowser1, 1);
    resize(860, 480);

    connect(Command10, &QPushButton::clicked, this, Event([this] { Command10_Click(); }));
    connect(Command8, &QPushButton::clicked, this,
            Event([this] { QApplication::clipboard()->setText(stylecode->toPlainText()); }));
    connect(Command9, &QPushButton::clicked, this, &QWidget::hide);
}

void frmscrollbar::Form_Load() { Command10_Click(); }

void frmscrollbar::Command10_Click()
{
    std::array<QString, 7> colours;
    for (int i = 0; i < 7; ++i)
        colours[i] = Text[i]->text();
    const QString block = StyleSheetText::scrollbarBlock(colours);
    stylecode->setPlainText(block);
    const QString page = StyleSheetText::scrollTestPath(App::userPath());
    QDir().mkpath(QFileInfo(page).absolutePath());
    writeOrFail(page, StyleSheetText::scrollTestPage(block, withCrLf(temprest)));
    WebBrowser1->Navigate(page);
}

// --- linking many pages ------------------------------------------------------------------------

StyleLink::StyleLink(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("StyleLink"));
    setWindowTitle(QStringLiteral("Style Link Wizard"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Select the .CSS document you wish to link :"), this));
    txtlocationfile = field(this, QStringLiteral("txtlocationfile"));
    txtlocationfile->setText(QStringLiteral("..."));
    txtlocationfile->setReadOnly(true);
    cmdSheet = button(this, QStringLiteral("cmdSheet"), QStringLiteral("Browse"));
    auto* sheetRow = new QHBoxLayout;
    sheetRow->addWidget(txtlocationfile, 1);
    sheetRow->addWidget(cmdSheet);
    layout->addLayout(sheetRow);
    txtlocationfile1 = field(this, QStringLiteral("txtlocationfile1"));
    txtlocationfile1->setReadOnly(true);
    layout->addWidget(txtlocationfile1);

    txtfolderlocation = field(this, QStringLiteral("txtfolderlocation"));
    txtfolderlocation->setReadOnly(true);
    layout->addWidget(txtfolderlocation);
    txtadd = field(this, QStringLiteral("txtadd"));
    cmdPage = button(this, QStringLiteral("cmdPage"), QStringLiteral("Browse"));
    cmdAdd = button(this, QStringLiteral("cmdAdd"), QStringLiteral("Add"));
    auto* addRow = new QHBoxLayout;
    addRow->addWidget(txtadd, 1);
    addRow->addWidget(cmdPage);
    addRow->addWidget(cmdAdd);
    layout->addLayout(addRow);
    lifiles = Look::named(new QListWidget(this), QStringLiteral("lifiles"));
    layout->addWidget(lifiles, 1);
    RichTextBox1 = Look::named(new QPlainTextEdit(this), QStringLiteral("RichTextBox1"));
    RichTextBox1->hide();
    Bar = Look::named(new QProgressBar(this), QStringLiteral("Bar"));
    Bar->setValue(0);
    layout->addWidget(Bar);
    lblAction = Look::named(new QLabel(QStringLiteral("Idle"), this), QStringLiteral("lblAction"));
    cmdProcess = button(this, QStringLiteral("cmdProcess"), QStringLiteral("Link"));
    cmdClose = button(this, QStringLiteral("cmdClose"), QStringLiteral("Close"));
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblAction, 1);
    bottom->addWidget(cmdProcess);
    bottom->addWidget(cmdClose);
    layout->addLayout(bottom);
    resize(520, 420);

    connect(cmdSheet, &QPushButton::clicked, this, Event([this] { chooseSheet(); }));
    connect(cmdPage, &QPushButton::clicked, this, Event([this] { choosePage(); }));
    connect(cmdAdd, &QPushButton::clicked, this, Event([this] { addPage(); }));
    connect(cmdProcess, &QPushButton::clicked, this, Event([this] { process(); }));
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::hide);
}

bool StyleLink::event(QEvent* e)
{
    if (e->type() == QEvent::WindowActivate)
        lblAction->setText(QStringLiteral("Idle"));
    return QDialog::event(e);
}

void StyleLink::chooseSheet()
{
    const QString path = prompts().openFile({}, QStringLiteral("Style Sheet (*.css*)"), {});
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("No file selected"));
        return;
    }
    txtlocationfile->setText(path);
    txtlocationfile1->setText(QFileInfo(path).fileName());
}

void StyleLink::choosePage()
{
    const QString path = prompts().openFile({}, QStringLiteral("All Files (*.*)"), {});
    if (path.isEmpty()) {
        MsgBox(QStringLiteral("No file selected"));
        return;
    }
    txtadd->setText(path);
    txtfolderlocation->setText(QDir::toNativeSeparators(QFileInfo(path).absolutePath()));
}

void StyleLink::addPage()
{
    if (txtadd->text().isEmpty()) {
        MsgBox(QStringLiteral("There is no file to be added."));
        return;
    }
    lifiles->addItem(txtadd->text());
    txtadd->clear();
}

void StyleLink::process()
{
    if (lifiles->count() == 0) {
        MsgBox(QStringLiteral("You need to add some files to process the action"));
        return;
    }
    lblAction->setText(QStringLiteral("Started .."));
    Bar->setRange(0, lifiles->count());
    Bar->setValue(0);
    const QString sheetPath = txtlocationfile->text();
    lifiles->setCurrentRow(0);
    // Each page done leaves the list, so a stopped run can go on with the pages still listed.
    while (lifiles->count() > 0) {
        const QString page = lifiles->item(0)->text();
        bool ok = false;
        const QString text = TextFiles::readText(page, &ok);
        if (!ok)
            throw RuntimeError(53, QStringLiteral("File not found"));
        RichTextBox1->setPlainText(text);
        bool found = false;
        const QString linked = StyleSheetText::linkBehindHead(text, sheetPath, &found);
        if (found)
            writeOrFail(page, linked);
        Bar->setValue(Bar->value() + 1);
        delete lifiles->takeItem(0);
        if (lifiles->count() > 0)
            lifiles->setCurrentRow(0);
    }
    RichTextBox1->clear();
    txtlocationfile->setText(QStringLiteral("..."));
    txtlocationfile1->clear();
    txtadd->clear();
    lblAction->setText(QStringLiteral("Completed"));
}
