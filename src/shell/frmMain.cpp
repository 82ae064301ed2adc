#include "shell/frmMain.h"

#include "documents/DocumentWindow.h"
#include "platform/App.h"
#include "platform/CheckValue.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/RuntimeError.h"
#include "platform/StartupSteps.h"
#include "platform/Twips.h"
#include "services/Commands.h"
#include "shell/AboutFORM.h"
#include "shell/MainMenu.h"
#include "shell/Options.h"
#include "shell/modMain.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QStackedLayout>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
// Widths of the two holders in their folded and open states.
constexpr int sideFolded = 475, sideOpen = 3470;
constexpr int rightFolded = 140, rightOpen = 720;
}

frmMain::frmMain(QWidget* parent) : QMainWindow(parent)
{
    setWindowTitle(App::title());
    buildLayout();
    if (const QScreen* s = QGuiApplication::primaryScreen()) {
        const QRect avail = s->availableGeometry();
        resize(avail.width() * 9 / 10, avail.height() * 9 / 10);
        move(avail.center() - rect().center());
    }
}

frmMain::~frmMain()
{
    // The area announces the loss of its windows while it is destroyed; this window is no
    // longer one to hear it by then.
    MDIClient->disconnect(this);
    // The hinted controls die with the window's children, after its own members.
    for (QObject* o : hints.keys()) {
        o->removeEventFilter(this);
        disconnect(o, nullptr, this, nullptr);
    }
}

frmMain* frmMain::instance() { return form<frmMain>(); }
frmMain* frmMain::loaded() { return loadedForm<frmMain>(); }

void frmMain::buildLayout()
{
    auto* central = new QWidget(this);
    auto* outer = new QVBoxLayout(central);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    outer->addLayout(row, 1);

    Sideholder = new QFrame(central);
    Sideholder->setObjectName(QStringLiteral("Sideholder"));
    Sideholder->setFrameShape(QFrame::StyledPanel);
    auto* sideLayout = new QHBoxLayout(Sideholder);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->setSpacing(0);
    LeftMoveIn = new QFrame(Sideholder);
    LeftMoveIn->setObjectName(QStringLiteral("LeftMoveIn"));
    LeftMoveIn->setStyleSheet(QStringLiteral("QFrame#LeftMoveIn { background-color: %1; }").arg(Look::heading.name()));
    auto* moveLayout = new QVBoxLayout(LeftMoveIn);
    moveLayout->setContentsMargins(1, 4, 1, 4);
    LeftMenuIn = new QToolButton(LeftMoveIn);
    LeftMenuIn->setObjectName(QStringLiteral("LeftMenuIn"));
    LeftMenuIn->setArrowType(Qt::LeftArrow);
    LeftMenuIn->setAutoRaise(true);
    moveLayout->addWidget(LeftMenuIn);
    moveLayout->addStretch();
    sideLayout->addWidget(LeftMoveIn);
    buildLeftPane(Sideholder);
    row->addWidget(Sideholder);

    MDIClient = new QMdiArea(central);
    MDIClient->setObjectName(QStringLiteral("MDIClient"));
    MDIClient->setBackground(QColor(171, 171, 171));
    row->addWidget(MDIClient, 1);

    RightHolder = new QFrame(central);
    RightHolder->setObjectName(QStringLiteral("RightHolder"));
    RightHolder->setStyleSheet(QStringLiteral("QFrame#RightHolder { background-color: %1; }").arg(Look::face.name()));
    auto* rightLayout = new QVBoxLayout(RightHolder);
    rightLayout->setContentsMargins(1, 4, 1, 4);
    RightMenuIn = new QToolButton(RightHolder);
    RightMenuIn->setObjectName(QStringLiteral("RightMenuIn"));
    RightMenuIn->setText(QStringLiteral("Close Bar"));
    RightMenuIn->setArrowType(Qt::RightArrow);
    RightMenuIn->setAutoRaise(true);
    rightLayout->addWidget(RightMenuIn, 0, Qt::AlignHCenter);
    rightLayout->addStretch();
    row->addWidget(RightHolder);
    buildRightBar();

    Tooltipframe = new QFrame(central);
    Tooltipframe->setObjectName(QStringLiteral("Tooltipframe"));
    Tooltipframe->setStyleSheet(QStringLiteral("QFrame#Tooltipframe { background-color: %1; border-top: 1px solid %2; }").arg(Look::tabFace.name()).arg(Look::heading.name()));
    auto* tipLayout = new QHBoxLayout(Tooltipframe);
    tipLayout->setContentsMargins(6, 2, 2, 2);
    auto* tipHead = new QLabel(QStringLiteral("Tooltip :"), Tooltipframe);
    tipHead->setStyleSheet(QStringLiteral("font-weight: bold; color: %1;").arg(Look::heading.name()));
    Tooltiptext = new QLabel(Tooltipframe);
    Tooltiptext->setObjectName(QStringLiteral("Tooltiptext"));
    SmartNetButton75 = new QToolButton(Tooltipframe);
    SmartNetButton75->setObjectName(QStringLiteral("SmartNetButton75"));
    SmartNetButton75->setText(QStringLiteral("x"));
    SmartNetButton75->setToolTip(QStringLiteral("Close Tool Tip Window"));
    SmartNetButton75->setAutoRaise(true);
    tipLayout->addWidget(tipHead);
    tipLayout->addWidget(Tooltiptext, 1);
    tipLayout->addWidget(SmartNetButton75);
    outer->addWidget(Tooltipframe);
    setCentralWidget(central);

    StatusBar1 = new QStatusBar(this);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    for (int i = 0; i < 3; ++i) {
        panels[i] = new QLabel(StatusBar1);
        panels[i]->setObjectName(QStringLiteral("Panel%1").arg(i + 1));
        panels[i]->setMinimumWidth(i == 0 ? 200 : 110);
    }
    StatusBar1->addWidget(panels[0], 1);
    StatusBar1->addPermanentWidget(panels[1]);
    StatusBar1->addPermanentWidget(panels[2]);
    panels[1]->setText(QStringLiteral("Lines: "));
    panels[2]->setText(QStringLiteral("Chr: "));
    setStatusBar(StatusBar1);
    buildButtonBars();
    hint(Tooltipframe, QStringLiteral("Hover Over various menu's  for a description ....\n(BETA 1 Version)"));

    foldSide(false);
    foldRight(false);

    connect(LeftMenuIn, &QToolButton::clicked, this, Event([this] { LeftMenuIn_Click(); }));
    connect(RightMenuIn, &QToolButton::clicked, this, Event([this] { RightMenuIn_Click(); }));
    connect(SmartNetButton75, &QToolButton::clicked, this, Event([this] {
        Options* options = form<Options>();
        setCheckValue(options->ToolTip, 0);
        options->ApplyDetails();
        Tooltipframe->hide();
    }));
    connect(MDIClient, &QMdiArea::subWindowActivated, this, &frmMain::subWindowActivated);
}

void frmMain::Form_Load()
{
    // The spell checker's object lives for the duration of this handler only; it joins
    // here with the spelling library.
    InitialiseApplication();
}

void frmMain::closeEvent(QCloseEvent* e)
{
    // The walk unloads this window last, if every document agrees to close.
    e->ignore();
    CloseAllWindows();
}

DocumentWindow* frmMain::ActiveForm() const
{
    QMdiSubWindow* sub = MDIClient->currentSubWindow();
    if (!sub)
        return nullptr;
    return qobject_cast<DocumentWindow*>(sub->widget());
}

QList<DocumentWindow*> frmMain::documents() const
{
    QList<DocumentWindow*> docs;
    for (QMdiSubWindow* sub : MDIClient->subWindowList(QMdiArea::CreationOrder))
        if (auto* d = qobject_cast<DocumentWindow*>(sub->widget()))
            docs.append(d);
    return docs;
}

void frmMain::addDocument(DocumentWindow* doc)
{
    QMdiSubWindow* sub = MDIClient->addSubWindow(doc);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->setWindowIcon(QIcon());
    sub->resize(MDIClient->width() * 3 / 4, MDIClient->height() * 3 / 4);
    doc->show();
    sub->show();
    activate(doc);
    Q_EMIT DocumentEvents::instance().documentAdded(doc);
}

void frmMain::activate(DocumentWindow* doc)
{
    if (QMdiSubWindow* sub = doc->subWindow())
        MDIClient->setActiveSubWindow(sub);
}

void frmMain::subWindowActivated(QMdiSubWindow* w)
{
    if (!w)
        return;
    if (auto* doc = qobject_cast<DocumentWindow*>(w->widget()))
        doc->Form_Activate();
}

void frmMain::MenuClick(const QString& key)
{
    if (menuKeyRuns(key))
        Commands::click(key);
}

void frmMain::setSideholderVisible(bool visible) { Sideholder->setVisible(visible); }

void frmMain::setTooltipText(const QString& text)
{
    if (Tooltiptext)
        Tooltiptext->setText(text);
}

void frmMain::buildMenu()
{
    if (SmartMenuXP1)
        SmartMenuXP1->deleteLater();
    // The bar sits in a holder: a maximised document then keeps its own title bar, and the
    // main caption stays the one the program sets (no merged "- [child]" caption).
    auto* holder = new QWidget(this);
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    SmartMenuXP1 = buildMainMenu(holder);
    layout->addWidget(SmartMenuXP1);
    setMenuWidget(holder);
}

void frmMain::Arrange(int how)
{
    const QList<QMdiSubWindow*> windows = MDIClient->subWindowList(QMdiArea::StackingOrder);
    if (how == 0) {
        MDIClient->cascadeSubWindows();
        return;
    }
    QList<QMdiSubWindow*> open, minimised;
    for (QMdiSubWindow* w : windows)
        (w->isMinimized() ? minimised : open).append(w);
    const QRect area = MDIClient->viewport()->rect();
    if (how == 1 || how == 2) {
        // Horizontal tiles lie one above the other, vertical ones side by side.
        const int n = int(open.size());
        for (int i = 0; i < n; ++i) {
            QMdiSubWindow* w = open[i];
            w->showNormal();
            if (how == 1) {
                const int h = area.height() / n;
                w->setGeometry(0, i * h, area.width(), i == n - 1 ? area.height() - i * h : h);
            } else {
                const int wd = area.width() / n;
                w->setGeometry(i * wd, 0, i == n - 1 ? area.width() - i * wd : wd, area.height());
            }
        }
        return;
    }
    // The minimised windows line up along the bottom edge.
    int x = 0;
    for (QMdiSubWindow* w : minimised) {
        const QSize s = w->size();
        w->move(x, area.height() - s.height());
        x += s.width();
    }
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Enter && hints.contains(watched))
        Tooltiptext->setText(hints.value(watched));
    return QMainWindow::eventFilter(watched, event);
}

void frmMain::hint(QWidget* w, const QString& line)
{
    hints.insert(w, line);
    w->installEventFilter(this);
    connect(w, &QObject::destroyed, this, [this](QObject* o) { hints.remove(o); });
}

void frmMain::setStatusText(int panel, const QString& text)
{
    if (panel >= 1 && panel <= 3)
        panels[panel - 1]->setText(text);
}

QString frmMain::statusText(int panel) const
{
    return (panel >= 1 && panel <= 3) ? panels[panel - 1]->text() : QString();
}

void frmMain::setDocumentCaption(const QString& name)
{
    setWindowTitle(versionCaption() + QStringLiteral(" [ ") + name + QStringLiteral(" ]"));
}

void frmMain::setSideholderWidth(int twips)
{
    sideWidth = twips;
    Sideholder->setFixedWidth(twipsToPixels(twips));
}

void frmMain::setRightHolderWidth(int twips)
{
    rightWidth = twips;
    RightHolder->setFixedWidth(twipsToPixels(twips));
    RightMenuIn->setVisible(true);
}

void frmMain::foldSide(bool folded)
{
    setSideholderWidth(folded ? sideFolded : sideOpen);
    // Folded, the holder keeps only its move-in strip.
    LeftTool->setVisible(!folded);
    panelHost->setVisible(!folded);
    const QString caption = folded ? QStringLiteral("Move Menu Out") : QStringLiteral("Move Menu In");
    LeftMenuIn->setText(caption);
    LeftMenuIn->setToolTip(caption);
    LeftMenuIn->setArrowType(folded ? Qt::RightArrow : Qt::LeftArrow);
}

void frmMain::foldRight(bool folded)
{
    setRightHolderWidth(folded ? rightFolded : rightOpen);
    const QString caption = folded ? QStringLiteral("Move Menu Out") : QStringLiteral("Move Menu In");
    RightMenuIn->setToolTip(caption);
    RightMenuIn->setArrowType(folded ? Qt::LeftArrow : Qt::RightArrow);
}

void frmMain::LeftMenuIn_Click() { foldSide(sideWidth != sideFolded); }
void frmMain::RightMenuIn_Click() { foldRight(rightWidth != rightFolded); }
