#include "shell/Startup.h"

#include "colour/ColourSwatch.h"
#include "documents/PageGenerator.h"
#include "platform/CheckValue.h"
#include "platform/EventProcedure.h"
#include "platform/Forms.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "services/Commands.h"
#include "shell/Options.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
using Look::named;



// A task of the list: a label that acts on a click and gives its hint while the mouse moves
// over it.
class TaskLabel : public QLabel {
public:
    TaskLabel(const QString& name, const QString& caption, std::function<void()> onClick,
              std::function<void()> onHover, QWidget* parent)
        : QLabel(caption, parent), click(std::move(onClick)), hover(std::move(onHover))
    {
        setObjectName(name);
        setCursor(Qt::PointingHandCursor);
        setMouseTracking(true);
        setStyleSheet(QStringLiteral("QLabel { color: %1; padding: 2px 4px; } QLabel:hover { text-decoration: underline; } QLabel:disabled { color: gray; }").arg(Look::heading.name()));
    }

protected:
    void mouseReleaseEvent(QMouseEvent* e) override
    {
        if (e->button() == Qt::LeftButton && click && isEnabled())
            click();
    }
    void mouseMoveEvent(QMouseEvent* e) override
    {
        if (hover)
            hover();
        e->accept();  // the frame underneath would clear the hint again
    }

private:
    std::function<void()> click;
    std::function<void()> hover;
};
}

Startup::Startup(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("StartUp Screen"));
    auto* layout = new QVBoxLayout(this);
    buildTaskList();
    buildSinglePage();
    buildStylePage();
    buildFramePage();
    for (QFrame* f : {frstartup, frsingle, CSSFrame, frframe})
        layout->addWidget(f);
    SmartNetButton1 = Look::faceButton(QStringLiteral("SmartNetButton1"), QStringLiteral("Close"), this);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(SmartNetButton1);
    layout->addLayout(row);
    connect(SmartNetButton1, &QPushButton::clicked, this, &QWidget::hide);
    Text1 = named(new QLineEdit(this), QStringLiteral("Text1"));
    Text1->hide();
    showFrame(frstartup);
    resize(520, 420);
}

void Startup::buildTaskList()
{
    frstartup = Look::headedFrame(QStringLiteral("frstartup"), QStringLiteral("Welcome to Velloro 2002"), this);
    frstartup->setMouseTracking(true);
    frstartup->installEventFilter(this);
    auto* v = static_cast<QVBoxLayout*>(frstartup->layout());
    auto heading = [this, v](const char* name, const char* caption) {
        auto* l = named(new QLabel(QString::fromUtf8(caption), frstartup), QString::fromLatin1(name));
        l->setStyleSheet(QStringLiteral("font-weight: bold; margin-top: 6px;"));
        v->addWidget(l);
        return l;
    };
    // A task: its marker, its label, its hint and its command; a task whose window this build
    // lacks stays grey.
    auto task = [this, v](const char* name, const char* caption, const char* hintText, const QString& formName,
                          std::function<void()> command) {
        auto* row = new QHBoxLayout;
        auto* marker = named(new QLabel(QStringLiteral("\u25B6"), frstartup), QStringLiteral("Marker") + QString::fromLatin1(name));
        marker->setStyleSheet(QStringLiteral("color: %1;").arg(Look::heading.name()));
        marker->setFixedWidth(14);
        marker->setVisible(false);
        const QString hint = QString::fromUtf8(hintText);
        auto* label = new TaskLabel(QString::fromLatin1(name), QString::fromUtf8(caption), std::move(command),
                                    [this, marker, hint] { showHint(marker, hint); }, frstartup);
        if (!formName.isEmpty())
            label->setEnabled(Forms::hasFactory(formName));
        markers.append(marker);
        row->addSpacing(8);
        row->addWidget(marker);
        row->addWidget(label, 1);
        v->addLayout(row);
        return label;
    };
    auto showAndHide = [this](const QString& name) {
        return [this, name] {
            showForm(name);
            hide();
        };
    };
    Label3 = heading("Label3", "Start A New:");
    Label4 = task("Label4", "Create A Single  Web Page", "Create a quick standard html page from quick options.", {},
                  [this] { showFrame(frsingle); });
    Label5 = task("Label5", "Create A Framed Web Site",
                  "Create a framed website from 2 pre-set options with colour and size options.", {},
                  [this] { showFrame(frframe); });
    task("Label6", "Create A Blank Notepad", "Simply create a standard Notepad document.", {}, [this] {
        Commands::click(QStringLiteral("Quick Notepad"));
        hide();
    });
    task("Label31", "Create A New Site Project",
         "Create a new project from 2 pre-set designs, business and fun. Simply select the pre-made pages you want, then add more yourself.",
         QStringLiteral("SiteManagment"), showAndHide(QStringLiteral("SiteManagment")));
    heading("Label32", "Open A Pre-set:");
    task("Label28", "Open A Pre-Made Template", "Open a Velloro 2002 pre-made template.", QStringLiteral("Templates"),
         showAndHide(QStringLiteral("Templates")));
    task("Label29", "Open An Existing Document", "Open an existing document on your pc.", QStringLiteral("Openform"),
         showAndHide(QStringLiteral("Openform")));
    task("Label26", "Open A Document From The Web", "Open/View the source of a website via the html address.",
         QStringLiteral("sourcepage"), showAndHide(QStringLiteral("sourcepage")));
    heading("Label33", "Web Options:");
    task("Label34", "Upload Via FTP", "Upload multiple files to your specified ftp server, now includes progress bars.",
         QStringLiteral("ftpnormal"), showAndHide(QStringLiteral("ftpnormal")));
    heading("Label35", "Help :");
    task("Label36", "Velloro Help", "Read how to use Velloro 2002.", QStringLiteral("HelpSystem"),
         showAndHide(QStringLiteral("HelpSystem")));
    v->addStretch();
    ToolTip = named(new QLabel(frstartup), QStringLiteral("ToolTip"));
    ToolTip->setWordWrap(true);
    ToolTip->setMinimumHeight(44);
    ToolTip->setMargin(4);
    ToolTip->setAutoFillBackground(true);
    v->addWidget(ToolTip);
    Check1 = named(new QCheckBox(QStringLiteral("Load at Startup ?"), frstartup), QStringLiteral("Check1"));
    // Ticked by design: the window shows at load unless the setting clears the tick.
    Check1->setChecked(true);
    v->addWidget(Check1);
    // The click handler runs on every change of the value, by the user or by code.
    connect(Check1, &QCheckBox::stateChanged, this, Event([this] { Check1_Click(); }));
}

void Startup::showHint(QLabel* marker, const QString& text)
{
    for (QLabel* m : markers)
        m->setVisible(m == marker);
    QPalette p = ToolTip->palette();
    p.setColor(QPalette::Window, QColor(255, 255, 192));
    ToolTip->setPalette(p);
    ToolTip->setText(text);
}

void Startup::clearHints()
{
    for (QLabel* m : markers)
        m->setVisible(false);
    ToolTip->setText(QString());
}

bool Startup::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == frstartup && event->type() == QEvent::MouseMove)
        clearHints();
    return QDialog::eventFilter(watched, event);
}

void Startup::buildSinglePage()
{
    frsingle = Look::headedFrame(QStringLiteral("frsingle"), QStringLiteral("Welcome to Velloro 2002"), this, &Label30);
    Label30->setObjectName(QStringLiteral("Label30"));
    auto* grid = new QGridLayout;
    title = named(new QLineEdit(frsingle), QStringLiteral("title"));
    Text3 = named(new QLineEdit(QStringLiteral("\"#000000\""), frsingle), QStringLiteral("Text3"));
    Text4 = named(new QLineEdit(QStringLiteral("\"#FFFFFF\""), frsingle), QStringLiteral("Text4"));
    mlocation = named(new QLineEdit(frsingle), QStringLiteral("mlocation"));
    mloop = named(new QLineEdit(QStringLiteral("0"), frsingle), QStringLiteral("mloop"));
    bpic = named(new QLineEdit(frsingle), QStringLiteral("bpic"));
    Shape3 = new ColourSwatch(QStringLiteral("Shape3"), frsingle);
    Shape3->setBackColor(0x000000);
    Shape4 = new ColourSwatch(QStringLiteral("Shape4"), frsingle);
    Shape4->setBackColor(0xFFFFFF);
    Command3 = Look::faceButton(QStringLiteral("Command3"), QStringLiteral("...."), frsingle);
    Command4 = Look::faceButton(QStringLiteral("Command4"), QStringLiteral("...."), frsingle);
    Command5 = Look::faceButton(QStringLiteral("Command5"), QStringLiteral("...."), frsingle);
    Command7 = Look::faceButton(QStringLiteral("Command7"), QStringLiteral("...."), frsingle);
    Check2 = named(new QCheckBox(frsingle), QStringLiteral("Check2"));
    CSS = named(new QCheckBox(QStringLiteral("Set Style sheet?"), frsingle), QStringLiteral("CSS"));

    grid->addWidget(new QLabel(QStringLiteral("Enter Page Title"), frsingle), 0, 0);
    grid->addWidget(title, 0, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Text Colour"), frsingle), 1, 0);
    grid->addWidget(Text3, 1, 1);
    grid->addWidget(Shape3, 1, 2);
    grid->addWidget(Command3, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Background Colour"), frsingle), 2, 0);
    grid->addWidget(Text4, 2, 1);
    grid->addWidget(Shape4, 2, 2);
    grid->addWidget(Command4, 2, 3);
    grid->addWidget(new QLabel(QStringLiteral("Background Music"), frsingle), 3, 0);
    grid->addWidget(mlocation, 3, 1, 1, 2);
    grid->addWidget(Command5, 3, 3);
    auto* loopRow = new QHBoxLayout;
    loopRow->addWidget(mloop);
    loopRow->addWidget(Check2);
    auto* Label12 = named(new QLabel(QStringLiteral("Forever"), frsingle), QStringLiteral("Label12"));
    loopRow->addWidget(Label12);
    loopRow->addStretch();
    grid->addWidget(new QLabel(QStringLiteral("Loop"), frsingle), 4, 0);
    grid->addLayout(loopRow, 4, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Background Picture"), frsingle), 5, 0);
    grid->addWidget(bpic, 5, 1, 1, 2);
    grid->addWidget(Command7, 5, 3);
    grid->addWidget(CSS, 6, 1, 1, 3);
    auto* v = static_cast<QVBoxLayout*>(frsingle->layout());
    v->addLayout(grid);
    v->addStretch();
    auto* nav = new QHBoxLayout;
    Command2 = Look::faceButton(QStringLiteral("Command2"), QStringLiteral("Previous"), frsingle);
    Command1 = Look::faceButton(QStringLiteral("Command1"), QStringLiteral("Next"), frsingle);
    nav->addStretch();
    nav->addWidget(Command2);
    nav->addWidget(Command1);
    v->addLayout(nav);

    connect(Command3, &QPushButton::clicked, this, Event([this] { chooseColourInto(Text3, Shape3, true); }));
    connect(Command4, &QPushButton::clicked, this, Event([this] { chooseColourInto(Text4, Shape4, true); }));
    connect(Command5, &QPushButton::clicked, this, Event([this] {
        const QString file = prompts().openFile(QString(), QStringLiteral("Music (*.wav *.mp3)"), QString());
        if (!file.isEmpty())
            mlocation->setText(file);
    }));
    // Any click disables the loop count, and nothing enables it again.
    connect(Check2, &QCheckBox::clicked, this, Event([this] { mloop->setEnabled(false); }));
    connect(Command1, &QPushButton::clicked, this, Event([this] {
        if (checkValue(CSS) != 0)
            showFrame(CSSFrame);
        else
            this->PrepareSoundTag();
    }));
    connect(Command2, &QPushButton::clicked, this, Event([this] { showFrame(frstartup); }));
}

void Startup::buildStylePage()
{
    CSSFrame = Look::headedFrame(QStringLiteral("CSSFrame"), QStringLiteral("Link Colours"), this);
    auto* grid = new QGridLayout;
    struct Row { const char* caption; QLineEdit** text; QComboBox** combo; ColourSwatch** swatch; QPushButton** button; int n; int cmd; };
    const Row rows[] = {{"A Link ", &Text7, &Combo7, &Shape7, &Command6, 7, 6},
                        {"A Visited ", &Text8, &Combo8, &Shape8, &Command8, 8, 8},
                        {"A Active ", &Text9, &Combo9, &Shape9, &Command9, 9, 9},
                        {"A Hover", &Text10, &Combo10, &Shape10, &Command10, 10, 10}};
    int r = 0;
    for (const Row& row : rows) {
        *row.text = named(new QLineEdit(QStringLiteral("\"#0000FF\""), CSSFrame), QStringLiteral("Text%1").arg(row.n));
        *row.combo = named(new QComboBox(CSSFrame), QStringLiteral("Combo%1").arg(row.n));
        (*row.combo)->setEditable(true);
        (*row.combo)->setCurrentText(QStringLiteral("Underlined"));
        *row.swatch = new ColourSwatch(QStringLiteral("Shape%1").arg(row.n), CSSFrame);
        (*row.swatch)->setBackColor(0xFF0000);
        *row.button = Look::faceButton(QStringLiteral("Command%1").arg(row.cmd), QStringLiteral("...."), CSSFrame);
        grid->addWidget(new QLabel(QString::fromLatin1(row.caption), CSSFrame), r, 0);
        grid->addWidget(*row.text, r, 1);
        grid->addWidget(*row.swatch, r, 2);
        grid->addWidget(*row.button, r, 3);
        grid->addWidget(*row.combo, r, 4);
        QLineEdit* text = *row.text;
        ColourSwatch* swatch = *row.swatch;
        connect(*row.button, &QPushButton::clicked, this, Event([text, swatch] { chooseColourInto(text, swatch, true); }));
        ++r;
    }
    auto* v = static_cast<QVBoxLayout*>(CSSFrame->layout());
    v->addLayout(grid);
    v->addStretch();
    auto* nav = new QHBoxLayout;
    Command13 = Look::faceButton(QStringLiteral("Command13"), QStringLiteral("Back"), CSSFrame);
    Command12 = Look::faceButton(QStringLiteral("Command12"), QStringLiteral("Next"), CSSFrame);
    nav->addStretch();
    nav->addWidget(Command13);
    nav->addWidget(Command12);
    v->addLayout(nav);
    connect(Command12, &QPushButton::clicked, this, Event([this] { PrepareSoundTag(); }));
    connect(Command13, &QPushButton::clicked, this, Event([this] { showFrame(frsingle); }));
}

void Startup::buildFramePage()
{
    frframe = Look::headedFrame(QStringLiteral("frframe"), QStringLiteral("Framed Web Site"), this);
    auto* v = static_cast<QVBoxLayout*>(frframe->layout());
    auto* Label27 = named(new QLabel(QStringLiteral("Just select the options below then click on a template on the left, the frames will be created. You must save the pages in the same directory for the index.html to work."), frframe), QStringLiteral("Label27"));
    Label27->setWordWrap(true);
    v->addWidget(Label27);
    auto* form = new QFormLayout;
    frsp = named(new QLineEdit(frframe), QStringLiteral("frsp"));
    bo = named(new QLineEdit(frframe), QStringLiteral("bo"));
    frbo = named(new QLineEdit(frframe), QStringLiteral("frbo"));
    frco = named(new QLineEdit(frframe), QStringLiteral("frco"));
    Text5 = named(new QLineEdit(frframe), QStringLiteral("Text5"));
    Shape5 = new ColourSwatch(QStringLiteral("Shape5"), frframe);
    Command14 = Look::faceButton(QStringLiteral("Command14"), QStringLiteral("...."), frframe);
    form->addRow(QStringLiteral("Frame Spacing"), frsp);
    form->addRow(QStringLiteral("Border"), bo);
    form->addRow(QStringLiteral("Frame Border"), frbo);
    form->addRow(QStringLiteral("Frame Contents width"), frco);
    auto* colourRow = new QHBoxLayout;
    colourRow->addWidget(Text5);
    colourRow->addWidget(Shape5);
    colourRow->addWidget(Command14);
    form->addRow(QStringLiteral("Frames Color"), colourRow);
    // The two templates stand on the left: columns and rows.
    Toolbar1 = named(new QToolBar(frframe), QStringLiteral("Toolbar1"));
    Toolbar1->setOrientation(Qt::Vertical);
    Toolbar1->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    Toolbar1->setIconSize(QSize(32, 32));
    const std::pair<const char*, const char*> templates[] = {{"frame1", "Columns"}, {"frame2", "Rows"}};
    for (const auto& [key, caption] : templates) {
        QAction* a = Toolbar1->addAction(Look::menuIcon(QString::fromLatin1(key)), QString::fromLatin1(caption));
        a->setObjectName(QString::fromLatin1(key));
        const QString k = QString::fromLatin1(key);
        connect(a, &QAction::triggered, this, Event([k] { Commands::run(k); }));
    }
    auto* body = new QHBoxLayout;
    body->addWidget(Toolbar1);
    body->addLayout(form, 1);
    v->addLayout(body);
    v->addStretch();
    auto* nav = new QHBoxLayout;
    Command16 = Look::faceButton(QStringLiteral("Command16"), QStringLiteral("Previous"), frframe);
    Command11 = Look::faceButton(QStringLiteral("Command11"), QStringLiteral("Close"), frframe);
    nav->addStretch();
    nav->addWidget(Command16);
    nav->addWidget(Command11);
    v->addLayout(nav);
    connect(Command14, &QPushButton::clicked, this, Event([this] { chooseColourInto(Text5, Shape5, true); }));
    connect(Command16, &QPushButton::clicked, this, Event([this] { showFrame(frstartup); }));
    connect(Command11, &QPushButton::clicked, this, &QWidget::hide);
}

void Startup::showFrame(QFrame* frame)
{
    for (QFrame* f : {frstartup, frsingle, CSSFrame, frframe})
        f->setVisible(f == frame);
}

void Startup::Form_Load()
{
    const QStringList decorations = {QStringLiteral("Underline"), QStringLiteral("None"), QStringLiteral("Underline + Upperline")};
    for (QComboBox* c : {Combo7, Combo8, Combo9, Combo10}) {
        const QString text = c->currentText();
        c->addItems(decorations);
        c->setCurrentText(text);
    }
    if (Check1->isChecked()) {
        setWindowFlag(Qt::WindowStaysOnTopHint, true);
        show();
    }
}

void Startup::showEvent(QShowEvent* e)
{
    for (QAction* a : Toolbar1->actions())
        a->setEnabled(Commands::has(a->objectName()));
    // The window always comes up on the task list, however it was left.
    showFrame(frstartup);
    QDialog::showEvent(e);
}

PageText::Fields Startup::pageFields() const
{
    PageText::Fields f;
    f.title = title->text();
    f.Text3 = Text3->text();
    f.Text4 = Text4->text();
    f.Text1 = Text1->text();
    f.Text7 = Text7->text();
    f.Text8 = Text8->text();
    f.Text9 = Text9->text();
    f.Text10 = Text10->text();
    f.Combo7 = Combo7->currentText();
    f.Combo8 = Combo8->currentText();
    f.Combo9 = Combo9->currentText();
    f.Combo10 = Combo10->currentText();
    return f;
}

bool Startup::styledPage() const { return checkValue(CSS) != 0; }

void Startup::GenerateWebPage()
{
    ::GenerateWebPage(pageFields(), styledPage());
    hide();
    Text1->clear();
}

void Startup::GenerateSplitPage()
{
    ::GenerateSplitPage(pageFields());
    hide();
    Text1->clear();
}

void Startup::PrepareSoundTag()
{
    Text1->setText(PageText::soundTag(mlocation->text(), mloop->text(), Text1->text()));
    GenerateWebPage();
}

void Startup::Check1_Click()
{
    Options* options = form<Options>();
    setCheckValue(options->LNEW, checkValue(Check1));
    options->ApplyDetails();
    if (checkValue(Check1) == 0)
        hide();
}
