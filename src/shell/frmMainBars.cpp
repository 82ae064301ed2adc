// The main window's button bars and right bar: each button is the body of a menu key, or one
// of the few bar-only commands.
#include "documents/DocumentWindow.h"
#include "documents/Insertion.h"
#include "documents/OpenSave.h"
#include "platform/CodeMax.h"
#include "platform/EventProcedure.h"
#include "platform/Forms.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "services/Commands.h"
#include "shell/MainMenu.h"
#include "shell/MenuCommands.h"
#include "shell/frmMain.h"

#include <QComboBox>
#include <QPainter>
#include <QScreen>
#include <QPixmap>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
using TextFiles::crlf;

struct BarButton {
    int number;        // SmartNetButton<number>
    const char* tip;   // caption of the button and name of its picture
    const char* key;   // the menu key it repeats, or "" for a bar-only command
};

// The five bars: file, editing, formatting, inserting, tools.
constexpr BarButton fileBar[] = {
    {1, "Quick html Page", "Quick html Page"}, {2, "From Files", "From Files"},
    {3, "Quick Notepad", "Quick Notepad"},     {4, "Save", ""},
    {5, "Save As", "Save As"},                 {6, "Print", "Print"},
    {7, "Preview in Velloro", "Preview in Velloro"},
};
constexpr BarButton editBar[] = {
    {22, "Undo", ""},  {23, "Redo", "Redo"},   {24, "Cut", "Cut"},
    {25, "Copy", "Copy"}, {26, "Paste", "Paste"}, {28, "Find + Replace", ""},
    {29, "GoTo Line", "GoTo Line"}, {59, "Previous Line", "Previous Line"}, {60, "Next Line", "Next Line"},
    {58, "Record Macro", "Record Macro"},
};
constexpr BarButton formatBar[] = {
    {8, "Bold", "Bold"},           {9, "Italic", "Italic"},   {10, "Underline", "Underline"},
    {11, "Paragraph", "Paragraph"}, {12, "Break", "Break"},    {18, "Ordered List", ""},
    {19, "Outdent", ""},           {20, "Indent", ""},
};
constexpr BarButton insertBar[] = {
    {13, "Hyperlink", "Hyperlink"}, {14, "Image", "Image"},   {15, "Table", "Table"},
    {16, "Horizontal Line", "Horizontal Line"}, {17, "Email", "Email"}, {21, "Marquee", "Marquee"},
};
constexpr BarButton toolsBar[] = {
    {30, "Colour Finder", "Colour Finder"}, {31, "CheckTags", "CheckTags"}, {32, "Spell Checker", "Spell Checker"},
    {33, "Program Options", "Program Options"}, {34, "Main New Window", "Main New Window"},
};

// The right bar's form fields: a fragment, or the menu key of the window that makes one.
struct FieldButton {
    int number;
    const char* caption;
    const char* fragment;
    const char* key;
};
constexpr FieldButton fieldButtons[] = {
    {35, "Check Box", "<p><input type=checkbox name=C1 value=ON></p>", ""},
    {36, "Button", "<p><input type=button value=Button name=B3></p>", ""},
    {37, "Submit", "<p><input type=submit value=Submit name=B1></p>", ""},
    {38, "Text Box Area", "", "Scrolling TextBox"},
    {39, "1 Line Text Box", "<p><input type=text name=T1 size=20></p>", ""},
    {40, "Hidden Box", "<input type=hidden name=H1 value=\"\">", ""},
    {41, "Password Box", "<p><input type=password name=P1 size=20></p>", ""},
    {42, "Marquee Text", "", "Marquee"},
    {43, "Drop Down Menu", "", "Drop Menu"},
    {44, "Subscript", "", "Subscript"},
    {45, "Superscript", "", "Superscript"},
};


bool refuseInNotepad()
{
    if (!ActiveIsNotepad())
        return false;
    MsgBox(QStringLiteral("Only Supported for Webpages."));
    return true;
}

// The blockquote pair: a tag in a page, the paragraph's indent in a notepad.
void indent(bool in)
{
    DocumentWindow* doc = ActiveDocument();
    if (doc->isNotepad()) {
        RichTextBox* box = doc->RichTextBox1();
        box->setSelIndent(qMax(0, box->SelIndent() + (in ? 360 : -360)));
        return;
    }
    InsertAtCaret(crlf + (in ? QStringLiteral("<blockquote>") : QStringLiteral("</blockquote>")) + crlf);
}

std::function<void()> barOnlyCommand(int number)
{
    switch (number) {
    case 4: return [] { ToolbarSave(); };
    case 22: return [] { OnErrorExit([] { if (!refuseInNotepad()) ActiveDocument()->CodeMax1()->undo(); }); };
    case 28: return [] {
        if (!ActiveForm()) {
            MsgBox(QStringLiteral("You need an active form to use the find facility"));
            return;
        }
        showForm(QStringLiteral("findform"));
    };
    case 18: return [] { OnErrorExit([] {
        if (ActiveIsNotepad())
            return;
        InsertAtCaret(crlf + QStringLiteral("<p><font color=Black size=3>") + crlf + QStringLiteral("<ol>") + crlf +
                      QStringLiteral("<li> ENTER TEXT HERE </li>") + crlf + QStringLiteral("</ol></font></p>") + crlf);
    }); };
    case 19: return [] { OnErrorExit([] { indent(false); }); };
    case 20: return [] { OnErrorExit([] { indent(true); }); };
    default: return {};
    }
}

// Four colour squares: the picture of the quick palette's button.
QIcon paletteIcon()
{
    QPixmap picture(20, 20);
    picture.fill(Qt::transparent);
    QPainter p(&picture);
    const QColor squares[] = {QColor(255, 0, 0), QColor(0, 128, 0), QColor(0, 0, 255), QColor(255, 204, 0)};
    for (int i = 0; i < 4; ++i)
        p.fillRect(QRect(1 + (i % 2) * 9, 1 + (i / 2) * 9, 8, 8), squares[i]);
    p.setPen(QColor(64, 64, 64));
    p.drawRect(0, 0, 19, 19);
    return QIcon(picture);
}

QToolButton* barButton(QWidget* parent, int number, const QString& tip, const QString& picture)
{
    auto* b = new QToolButton(parent);
    b->setObjectName(QStringLiteral("SmartNetButton%1").arg(number));
    b->setToolTip(tip);
    const QIcon icon = Look::menuIcon(picture);
    if (icon.isNull())
        b->setText(tip);
    else
        b->setIcon(icon);
    b->setAutoRaise(true);
    return b;
}
}

void frmMain::buildButtonBars()
{
    const std::pair<const BarButton*, int> bars[] = {
        {fileBar, int(std::size(fileBar))},     {editBar, int(std::size(editBar))},
        {formatBar, int(std::size(formatBar))}, {insertBar, int(std::size(insertBar))},
        {toolsBar, int(std::size(toolsBar))},
    };
    const char* titles[] = {"File", "Edit", "Format", "Insert", "Tools"};
    for (int i = 0; i < 5; ++i) {
        auto* bar = new QToolBar(QString::fromLatin1(titles[i]), this);
        bar->setObjectName(QStringLiteral("Picture%1").arg(i + 1));
        bar->setIconSize(QSize(20, 20));
        bar->setMovable(false);
        Picture[i] = bar;
        for (int j = 0; j < bars[i].second; ++j) {
            const BarButton& entry = bars[i].first[j];
            const QString key = QString::fromLatin1(entry.key);
            const QString tip = QString::fromLatin1(entry.tip);
            QToolButton* b = barButton(bar, entry.number, tip, key.isEmpty() ? tip : key);
            bar->addWidget(b);
            if (key.isEmpty()) {
                connect(b, &QToolButton::clicked, this, Event(barOnlyCommand(entry.number)));
            } else {
                b->setEnabled(menuKeyRuns(key));
                connect(b, &QToolButton::clicked, this, Event([this, key] { MenuClick(key); }));
            }
        }
    }
    // The heading, size and font tools sit on the formatting bar.
    Combo4 = Look::named(new QComboBox(Picture[2]), QStringLiteral("Combo4"));
    Combo4->setToolTip(QStringLiteral("Heading"));
    Combo1 = Look::named(new QComboBox(Picture[2]), QStringLiteral("Combo1"));
    Combo1->setToolTip(QStringLiteral("Font Size"));
    Combo2 = Look::named(new QComboBox(Picture[2]), QStringLiteral("Combo2"));
    Combo2->setToolTip(QStringLiteral("Font"));
    Combo2->setMinimumContentsLength(14);
    Picture[2]->addSeparator();
    Picture[2]->addWidget(Combo4);
    Picture[2]->addWidget(Combo1);
    Picture[2]->addWidget(Combo2);

    // The quick colour palette drops from its own button, below it.
    quickColour = Look::named(new QToolButton(Picture[2]), QStringLiteral("quickColour"));
    quickColour->setToolTip(QStringLiteral("Quick Colour"));
    quickColour->setIcon(paletteIcon());
    quickColour->setAutoRaise(true);
    quickColour->setEnabled(Forms::hasFactory(QStringLiteral("ColorQuick")));
    Picture[2]->addWidget(quickColour);
    connect(quickColour, &QToolButton::clicked, this, Event([this] {
        QWidget* palette = Forms::get(QStringLiteral("ColorQuick"));
        palette->adjustSize();
        QPoint at = quickColour->mapToGlobal(QPoint(0, quickColour->height()));
        // Whole on the screen: near its right edge the palette moves left.
        if (const QScreen* s = quickColour->screen()) {
            const QRect room = s->availableGeometry();
            at.setX(qMax(room.left(), qMin(at.x(), room.right() + 1 - palette->width())));
        }
        palette->move(at);
        showForm(QStringLiteral("ColorQuick"));
    }));
    connect(Combo1, &QComboBox::textActivated, this, Event([](const QString& t) { OnErrorExit([&] { applyFontSize(t); }); }));
    connect(Combo2, &QComboBox::textActivated, this, Event([](const QString& t) { OnErrorExit([&] { applyFontFace(t); }); }));
    connect(Combo4, &QComboBox::activated, this, Event([](int index) { OnErrorExit([&] { insertHeading(index + 1); }); }));

    alignCoolBar(Qt::TopToolBarArea);
}

void frmMain::alignCoolBar(Qt::ToolBarArea area)
{
    barArea = area;
    // Two rows: files, editing and tools; then formatting and inserting.
    for (QToolBar* bar : Picture)
        removeToolBar(bar);
    const int firstRow[] = {0, 1, 4}, secondRow[] = {2, 3};
    for (int i : firstRow) {
        addToolBar(area, Picture[i]);
        Picture[i]->show();
    }
    addToolBarBreak(area);
    for (int i : secondRow) {
        addToolBar(area, Picture[i]);
        Picture[i]->show();
    }
}

void frmMain::buildRightBar()
{
    auto* v = static_cast<QVBoxLayout*>(RightHolder->layout());
    for (const FieldButton& f : fieldButtons) {
        const QString caption = QString::fromLatin1(f.caption);
        QToolButton* b = barButton(RightHolder, f.number, caption, caption);
        b->setIconSize(QSize(24, 24));
        v->insertWidget(v->count() - 1, b, 0, Qt::AlignHCenter);
        const QString fragment = QString::fromLatin1(f.fragment);
        const QString key = QString::fromLatin1(f.key);
        if (!key.isEmpty())
            b->setEnabled(menuKeyRuns(key));
        connect(b, &QToolButton::clicked, this, Event([this, fragment, key] {
            OnErrorExit([&] {
                if (refuseInNotepad())
                    return;
                if (key.isEmpty())
                    InsertAtCaret(crlf + fragment + crlf);
                else
                    MenuClick(key);
            });
        }));
    }
}
