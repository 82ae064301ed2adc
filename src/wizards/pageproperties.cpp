#include "wizards/pageproperties.h"

#include "colour/ColourSwatch.h"
#include "documents/DocumentWindow.h"
#include "documents/FileFacts.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "services/Commands.h"
#include "services/Workspace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QVBoxLayout>

using PageProperties::Outcome;
using PageProperties::Result;
using PageProperties::WorkCopy;

namespace {
const QString noData = QStringLiteral(" No data to change!!");
const QString noTextColour = QStringLiteral("There is no text color set for the page to change!");

QLabel* wrapped(const QString& name, const QString& text, QWidget* parent)
{
    auto* l = Look::named(new QLabel(text, parent), name);
    l->setWordWrap(true);
    return l;
}

QLineEdit* edit(const QString& name, const QString& text, QWidget* parent)
{
    return Look::named(new QLineEdit(text, parent), name);
}

QPushButton* button(const QString& name, const QString& caption, QWidget* parent)
{
    QPushButton* b = Look::faceButton(name, caption, parent);
    b->setAutoDefault(false);
    return b;
}

// The box's text has CR LF for every line end; the page's own text may have LF alone.
QString asBoxText(QString s)
{
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    s.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return s;
}

// Positions: the box counts a line end as one character, the text as it stands counts its
// CR LF as two.
int boxPosition(const QString& text, int pos)
{
    pos = qBound(0, pos, static_cast<int>(text.size()));
    int pairs = 0;
    for (int i = 1; i < pos; ++i)
        pairs += text[i - 1] == QLatin1Char('\r') && text[i] == QLatin1Char('\n');
    return pos - pairs;
}

// The other way: the position in the text of a position in the box.
int textPosition(const QString& text, int boxPos)
{
    qsizetype i = 0;
    for (int counted = 0; i < text.size() && counted < boxPos; ++counted)
        i += (text[i] == QLatin1Char('\r') && i + 1 < text.size() && text[i + 1] == QLatin1Char('\n')) ? 2 : 1;
    return static_cast<int>(i);
}

void select(RichTextBox* box, const QString& text, int start, int length)
{
    const int from = boxPosition(text, start);
    box->setSelStart(from);
    box->setSelLength(boxPosition(text, start + length) - from);
}

// The editor takes the work copy's text as one step of its undo: only the part that differs is
// replaced, so Undo gives the page back as it was before the command.
void rewrite(CodeMax* editor, const QString& text)
{
    const QString old = editor->text();
    const qsizetype shorter = qMin(old.size(), text.size());
    qsizetype head = 0;
    while (head < shorter && old[head] == text[head])
        ++head;
    if (head > 0 && old[head - 1].isHighSurrogate())
        --head;
    qsizetype tail = 0;
    while (tail < shorter - head && old[old.size() - 1 - tail] == text[text.size() - 1 - tail])
        ++tail;
    if (tail > 0 && old[old.size() - tail].isLowSurrogate())
        --tail;
    if (head == old.size() && head == text.size())
        return;
    const auto from = static_cast<unsigned long>(QStringView(old).left(head).toUtf8().size());
    const auto to = static_cast<long>(QStringView(old).left(old.size() - tail).toUtf8().size());
    const QByteArray middle = QStringView(text).mid(head, text.size() - tail - head).toUtf8();
    editor->SendScintilla(QsciScintillaBase::SCI_BEGINUNDOACTION);
    editor->SendScintilla(QsciScintillaBase::SCI_SETTARGETRANGE, from, to);
    editor->SendScintilla(QsciScintillaBase::SCI_REPLACETARGET, static_cast<unsigned long>(middle.size()), middle.constData());
    editor->SendScintilla(QsciScintillaBase::SCI_ENDUNDOACTION);
}
}

pageproperties::pageproperties(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Page Options ::"));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 8);

    // The header shape, in the heading colour, as on every wizard.
    QFrame* banner = Look::banner(QStringLiteral("Shape3"), windowTitle(), this);
    outer->addWidget(banner);

    SSTab1 = Look::named(new QTabWidget(this), QStringLiteral("SSTab1"));
    SSTab2 = Look::named(new QTabWidget(this), QStringLiteral("SSTab2"));
    SSTab3 = Look::named(new QTabWidget(this), QStringLiteral("SSTab3"));
    SSTab1->addTab(pageTab(), QStringLiteral("Page"));
    SSTab1->addTab(SSTab2, QStringLiteral("Style Sheet's"));
    SSTab1->addTab(SSTab3, QStringLiteral("Properties"));
    SSTab2->addTab(styleTab(), QStringLiteral("Style Sheet's"));
    SSTab2->addTab(linksTab(), QStringLiteral("Colours / Actions"));
    SSTab3->addTab(detailsTab(), QStringLiteral("File"));
    SSTab3->addTab(notepadTab(), QStringLiteral("Text"));
    auto* body = new QVBoxLayout;
    body->setContentsMargins(8, 8, 8, 0);
    body->addWidget(SSTab1);
    outer->addLayout(body, 1);

    connect(SSTab1, &QTabWidget::currentChanged, this, [this] { followTabs(); });
    connect(SSTab2, &QTabWidget::currentChanged, this, [this] { followTabs(); });
    connect(Check1, &QCheckBox::toggled, this, [this](bool on) {
        Text2->setEnabled(on);
        Text4->setEnabled(on);
        Command11->setEnabled(on);
    });
    Text2->setEnabled(false);
    Text4->setEnabled(false);
    Command11->setEnabled(false);

    connect(Command11, &QPushButton::clicked, this, Event([this] { Command11_Click(); }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { Command2_Click(); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { Command4_Click(); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] { Command5_Click(); }));
    connect(Command6, &QPushButton::clicked, this, Event([this] { Command6_Click(); }));
    connect(Command12, &QPushButton::clicked, this, Event([this] { Command12_Click(); }));
    followTabs();
}

QWidget* pageproperties::pageTab()
{
    auto* page = new QWidget;
    auto* col = new QVBoxLayout(page);

    auto* margins = new QGroupBox(QStringLiteral("Margins"), page);
    auto* m = new QFormLayout(margins);
    Check1 = Look::named(new QCheckBox(QStringLiteral("Enable Margins :"), margins), QStringLiteral("Check1"));
    m->addRow(Check1);
    Text2 = edit(QStringLiteral("Text2"), {}, margins);
    Text4 = edit(QStringLiteral("Text4"), {}, margins);
    m->addRow(QStringLiteral("Top Margin :"), Text2);
    m->addRow(QStringLiteral("Left Margin :"), Text4);
    Command11 = button(QStringLiteral("Command11"), QStringLiteral("Change"), margins);
    auto* change = new QHBoxLayout;
    change->addStretch();
    change->addWidget(Command11);
    m->addRow(change);
    col->addWidget(margins);

    auto* colours = new QGroupBox(QStringLiteral("Colours"), page);
    auto* g = new QGridLayout(colours);
    auto colourRow = [&](int row, const QString& label, QLineEdit*& text, const QString& textName, const QString& deflt,
                         ColourSwatch*& swatch, const QString& swatchName, QPushButton*& choose, const QString& chooseName,
                         QPushButton*& change, const QString& changeName) {
        text = edit(textName, deflt, colours);
        swatch = new ColourSwatch(swatchName, colours);
        choose = button(chooseName, QStringLiteral("Choose"), colours);
        change = button(changeName, QStringLiteral("CHANGE"), colours);
        g->addWidget(new QLabel(label, colours), row, 0);
        g->addWidget(text, row, 1);
        g->addWidget(swatch, row, 2);
        g->addWidget(choose, row, 3);
        g->addWidget(change, row, 4);
        swatch->setBackColor(deflt == QLatin1String("\"#000000\"") ? 0x000000 : 0xFFFFFF);
        QLineEdit* field = text;
        ColourSwatch* shape = swatch;
        connect(choose, &QPushButton::clicked, this, Event([field, shape] { chooseColourInto(field, shape, true); }));
    };
    colourRow(0, QStringLiteral("Background Color :"), Text1, QStringLiteral("Text1"), QStringLiteral("\"#FFFFFF\""), Shape1,
              QStringLiteral("Shape1"), Command1, QStringLiteral("Command1"), Command2, QStringLiteral("Command2"));
    colourRow(1, QStringLiteral("Text Color :"), Text3, QStringLiteral("Text3"), QStringLiteral("\"#000000\""), Shape2,
              QStringLiteral("Shape2"), Command3, QStringLiteral("Command3"), Command4, QStringLiteral("Command4"));
    g->setColumnStretch(1, 1);
    col->addWidget(colours);
    col->addStretch();
    return page;
}

QWidget* pageproperties::styleTab()
{
    auto* page = new QWidget;
    auto* col = new QVBoxLayout(page);
    Label24 = wrapped(QStringLiteral("Label24"),
                      QStringLiteral("Adding style sheets help make the overall look and feel of the website better. "
                                     "Hyperlinks can be changed so you dont have those annoying lines underneath them."),
                      page);
    col->addWidget(Label24);
    Frame1 = Look::named(new QGroupBox(QStringLiteral("Enable Internal Style Sheet's"), page), QStringLiteral("Frame1"));
    auto* internal = new QGridLayout(Frame1);
    CSS = Look::named(new QCheckBox(Frame1), QStringLiteral("CSS"));
    Label25 = wrapped(QStringLiteral("Label25"),
                      QStringLiteral("Tick the box to select CSS to appear on your page, you can change the default "
                                     "options on the Colours / Actions tab"),
                      Frame1);
    Label26 = wrapped(QStringLiteral("Label26"),
                      QStringLiteral("By default this option is not selected, you can make it enabled every time by "
                                     "setting it up in the Menu, Tools, Options"),
                      Frame1);
    internal->addWidget(CSS, 0, 0, Qt::AlignTop);
    internal->addWidget(Label25, 0, 1);
    internal->addWidget(Label26, 1, 1);
    internal->setColumnStretch(1, 1);
    col->addWidget(Frame1);
    Frame2 = Look::named(new QGroupBox(QStringLiteral("Enable External Style Sheet's"), page), QStringLiteral("Frame2"));
    auto* external = new QHBoxLayout(Frame2);
    Label30 = wrapped(QStringLiteral("Label30"), QStringLiteral("You can use an extrenal style sheet by clicking the load button :"),
                      Frame2);
    Command12 = button(QStringLiteral("Command12"), QStringLiteral("Load"), Frame2);
    external->addWidget(Label30, 1);
    external->addWidget(Command12);
    col->addWidget(Frame2);
    col->addStretch();
    return page;
}

QWidget* pageproperties::linksTab()
{
    auto* page = new QWidget;
    auto* col = new QVBoxLayout(page);
    Label3 = wrapped(QStringLiteral("Label3"),
                     QStringLiteral("There is no current Style sheet, click on the Colours tab above, change the options "
                                    "then click add below."),
                     page);
    col->addWidget(Label3);
    auto* g = new QGridLayout;
    const QString link = QStringLiteral("\"#0000FF\"");
    const QStringList decorations = {QStringLiteral("Underline"), QStringLiteral("None"), QStringLiteral("Underline + Upperline")};
    auto linkRow = [&](int row, const QString& label, const QString& n, QLineEdit*& text, QComboBox*& combo,
                       QPushButton*& load, ColourSwatch*& swatch, const QString& swatchName) {
        text = edit(QStringLiteral("Text") + n, link, page);
        swatch = new ColourSwatch(swatchName, page);
        swatch->setBackColor(0xFF0000);  // the default blue: blue is the high byte
        load = button(QStringLiteral("Command") + n, QStringLiteral("Load"), page);
        combo = Look::named(new QComboBox(page), QStringLiteral("Combo") + n);
        // Editable: the stored default is not one of the rows, and what the box shows is taken.
        combo->setEditable(true);
        combo->setProperty("rows", decorations);
        combo->setCurrentText(QStringLiteral("Underlined"));
        g->addWidget(new QLabel(label, page), row, 0);
        g->addWidget(text, row, 1);
        g->addWidget(swatch, row, 2);
        g->addWidget(load, row, 3);
        g->addWidget(new QLabel(QStringLiteral("Text Decoration :"), page), row, 4);
        g->addWidget(combo, row, 5);
        QLineEdit* field = text;
        ColourSwatch* shape = swatch;
        connect(load, &QPushButton::clicked, this, Event([field, shape] { chooseColourInto(field, shape, true); }));
    };
    linkRow(0, QStringLiteral("A : Link :"), QStringLiteral("7"), Text7, Combo7, Command7, Shape7, QStringLiteral("Shape7"));
    linkRow(1, QStringLiteral("A : Visited :"), QStringLiteral("8"), Text8, Combo8, Command8, Shape8, QStringLiteral("Shape8"));
    linkRow(2, QStringLiteral("A : Active :"), QStringLiteral("9"), Text9, Combo9, Command9, Shape9, QStringLiteral("Shape9"));
    linkRow(3, QStringLiteral("A : Hover :"), QStringLiteral("10"), Text10, Combo10, Command10, Shape10,
            QStringLiteral("Shape10"));
    g->setColumnStretch(1, 1);
    g->setColumnStretch(5, 1);
    col->addLayout(g);
    auto* row = new QHBoxLayout;
    row->addStretch();
    Command5 = button(QStringLiteral("Command5"), QStringLiteral("Update"), page);
    Command6 = button(QStringLiteral("Command6"), QStringLiteral("Add"), page);
    row->addWidget(Command5);
    row->addWidget(Command6);
    col->addLayout(row);
    col->addStretch();
    return page;
}

QWidget* pageproperties::detailsTab()
{
    facts = new FileFacts;
    Filenae = facts->Filenae;
    Location = facts->Location;
    Extension = facts->Extension;
    Filesize = facts->Filesize;
    Modified = facts->Modified;
    datecreated = facts->datecreated;
    Readonly = facts->Readonly;
    Filehidden = facts->Filehidden;
    return facts;
}

QWidget* pageproperties::notepadTab()
{
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    Text5 = edit(QStringLiteral("Text5"), {}, page);
    Text6 = edit(QStringLiteral("Text6"), {}, page);
    Text11 = edit(QStringLiteral("Text11"), QStringLiteral("\"#000000\""), page);
    form->addRow(QStringLiteral("Left Indent"), Text5);
    form->addRow(QStringLiteral("Right Indent"), Text6);
    form->addRow(QStringLiteral("Text Color"), Text11);
    Check2 = Look::named(new QCheckBox(QStringLiteral("Bold"), page), QStringLiteral("Check2"));
    Check3 = Look::named(new QCheckBox(QStringLiteral("Italic"), page), QStringLiteral("Check3"));
    Check4 = Look::named(new QCheckBox(QStringLiteral("Underline"), page), QStringLiteral("Check4"));
    auto* checks = new QHBoxLayout;
    checks->addWidget(Check2);
    checks->addWidget(Check3);
    checks->addWidget(Check4);
    checks->addStretch();
    form->addRow(checks);
    return page;
}

// Enter runs the command of the page on view: the background's on the first page, the update
// on the link colours, none elsewhere.
void pageproperties::followTabs()
{
    QPushButton* main = nullptr;
    if (SSTab1->currentIndex() == 0)
        main = Command2;
    else if (SSTab1->currentWidget() == SSTab2 && SSTab2->currentIndex() == 1)
        main = Command5;
    for (QPushButton* b : {Command2, Command5})
        b->setDefault(b == main);
}

void pageproperties::Form_Load()
{
    for (QComboBox* c : {Combo7, Combo8, Combo9, Combo10}) {
        const QString shown = c->currentText();
        c->addItems(c->property("rows").toStringList());
        c->setCurrentText(shown);
    }
    SSTab1->setCurrentIndex(0);
    SSTab2->setCurrentIndex(0);
    SSTab3->setCurrentIndex(0);

    // Without a document there is nothing to read; the activation that follows says so.
    DocumentWindow* doc = ActiveForm();
    if (!doc)
        return;
    if (!doc->isNotepad()) {
        // The work copy is filled first, as at every activation, so that the look-up sees the page.
        Form_Activate();
        const bool found = OnErrorExit([this] {
            RichTextBox* box = ActiveDocument()->RichTextBox1();
            if (!store(box, PageProperties::selectStyle(workCopy(box))))
                throw RuntimeError::invalidProperty();
            Command6->setEnabled(false);
        });
        if (!found)
            MsgBox(QStringLiteral("There is no style sheet on this page, you can add one now"));
        fillFileDetails(doc);
    } else {
        SSTab3->setCurrentIndex(1);
        fillNotepadValues(doc);
        Filenae->setText(doc->Caption());
    }
}

void pageproperties::Form_Activate()
{
    // Closing a message box of this step activates the window again; that must not ask again.
    if (activating)
        return;
    const QScopedValueRollback guard(activating, true);
    DocumentWindow* doc = ActiveForm();
    try {
        if (!doc)
            throw RuntimeError::objectNotSet();
        // The editor is read before the box is emptied: in a notepad RichTextBox1 is the
        // document itself, and it must not lose its text to a copy that cannot succeed.
        const QString text = doc->CodeMax1()->text();
        RichTextBox* box = doc->RichTextBox1();
        box->setText(QString());
        box->setText(text);
        exactBox = box;
        exactText = text;
    } catch (const RuntimeError&) {
        if (doc && doc->isNotepad())
            return;
        MsgBox(QStringLiteral("There is no page to view properties for!"));
        hide();
    }
}

void pageproperties::showEvent(QShowEvent* e)
{
    QDialog::showEvent(e);
    Form_Activate();
}

void pageproperties::changeEvent(QEvent* e)
{
    QDialog::changeEvent(e);
    if (e->type() == QEvent::ActivationChange && isVisible() && isActiveWindow())
        Form_Activate();
}

WorkCopy pageproperties::workCopy(RichTextBox* box) const
{
    // The selection is always the box's own (a search of another window may have moved it).
    WorkCopy w;
    w.text = box == exactBox && box->text() == asBoxText(exactText) ? exactText : box->text();
    w.selStart = textPosition(w.text, box->SelStart());
    w.selLength = textPosition(w.text, box->SelStart() + box->SelLength()) - w.selStart;
    return w;
}

bool pageproperties::store(RichTextBox* box, const Result& r)
{
    if (r.replacedStart < 0) {
        // Only the selection moved.
        select(box, r.copy.text, r.copy.selStart, r.copy.selLength);
    } else if (box->widget()) {
        // A notepad's own text: only the span is replaced, so the rest keeps its formatting.
        const WorkCopy before = workCopy(box);
        select(box, before.text, r.replacedStart, r.replacedLength);
        box->setSelText(r.inserted);
    } else {
        box->setText(r.copy.text);
        select(box, r.copy.text, r.copy.selStart, r.copy.selLength);
    }
    exactBox = box;
    exactText = r.copy.text;
    return r.outcome != Outcome::InvalidProperty;
}

void pageproperties::copyBack()
{
    // Read anew: the active document's work copy goes to its own editor.
    RichTextBox* box = ActiveDocument()->RichTextBox1();
    const WorkCopy w = workCopy(box);
    rewrite(ActiveDocument()->CodeMax1(), w.text);
}

void pageproperties::Command11_Click()
{
    RichTextBox* box = ActiveDocument()->RichTextBox1();
    const Result r = PageProperties::margins(workCopy(box), Text2->text(), Text4->text());
    if (r.outcome == Outcome::NoData) {
        MsgBox(noData);
        return;
    }
    store(box, r);
    copyBack();
}

void pageproperties::Command2_Click()
{
    // No trap: a page without the attribute ends in the run-time error of the selection.
    RichTextBox* box = ActiveDocument()->RichTextBox1();
    const WorkCopy before = workCopy(box);
    const Result r = PageProperties::background(before, Text1->text());
    if (r.outcome == Outcome::NoData) {
        MsgBox(noData);
        return;
    }
    if (!store(box, r))
        throw RuntimeError::invalidProperty();
    // The work copy shows the new span in red; nothing else comes of it.
    const int caret = box->SelStart();
    select(box, r.copy.text, r.replacedStart, static_cast<int>(r.inserted.size()));
    box->setSelColor(255);
    box->setSelStart(caret);
    copyBack();
}

void pageproperties::Command4_Click()
{
    OnErrorExit(
        [this] {
            RichTextBox* box = ActiveDocument()->RichTextBox1();
            const Result r = PageProperties::textColour(workCopy(box), Text3->text());
            if (r.outcome == Outcome::NoData) {
                MsgBox(noData);
                return;
            }
            if (!store(box, r))
                throw RuntimeError::invalidProperty();
            copyBack();
        },
        noTextColour, Style::OkOnly, {});
}

void pageproperties::Command5_Click()
{
    // The work copy only: the page gets it when another command copies back.
    OnErrorExit(
        [this] {
            RichTextBox* box = ActiveDocument()->RichTextBox1();
            if (!store(box, PageProperties::updateStyle(workCopy(box), linkStyles())))
                throw RuntimeError::invalidProperty();
        },
        noTextColour, Style::OkOnly, {});
}

void pageproperties::Command6_Click()
{
    OnErrorExit(
        [this] {
            RichTextBox* box = ActiveDocument()->RichTextBox1();
            store(box, PageProperties::addStyle(workCopy(box), linkStyles()));
            copyBack();
        },
        QStringLiteral("Error has occured while trying to input the CSS"), Style::OkOnly, {});
}

void pageproperties::Command12_Click()
{
    Commands::run(QStringLiteral("External Style Sheet"));
    hide();
}

PageProperties::LinkStyles pageproperties::linkStyles() const
{
    return {Text7->text(),  Combo7->currentText(), Text8->text(),  Combo8->currentText(),
            Text9->text(),  Combo9->currentText(), Text10->text(), Combo10->currentText()};
}

void pageproperties::fillFileDetails(DocumentWindow* doc) { facts->fill(doc); }

void pageproperties::fillNotepadValues(DocumentWindow* doc)
{
    // Each value on its own: a control the notepad lacks leaves its field as it is.
    ResumeNext next;
    const std::pair<QLineEdit*, const char*> fields[] = {{Text5, "Text1"}, {Text6, "Text2"}, {Text11, "Text3"}};
    for (const auto& [field, name] : fields) {
        QLineEdit* target = field;
        const QString source = QString::fromLatin1(name);
        next([doc, target, source] {
            auto* from = doc->findChild<QLineEdit*>(source);
            if (!from)
                throw RuntimeError::noSuchMember(source);
            target->setText(from->text());
        });
    }
    RichTextBox* box = doc->RichTextBox1();
    Check2->setChecked(box->SelBold());
    Check3->setChecked(box->SelItalic());
    Check4->setChecked(box->SelUnderline());
}
