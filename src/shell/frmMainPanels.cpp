// The main window's left pane: the strip of panel buttons and the panels it switches.
#include "documents/OpenSave.h"
#include "ftp/ftpnormal.h"
#include "platform/EventProcedure.h"
#include "platform/FileControls.h"
#include "platform/Look.h"
#include "platform/Twips.h"
#include "reference/ReferencePanels.h"
#include "shell/frmMain.h"
#include "sites/ProjectPanel.h"

#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using Look::named;

QString fileSizeText(qint64 bytes)
{
    if (bytes < 1001)
        return QString::number(bytes) + QStringLiteral(" byte's");
    return QString::number(bytes / 1000) + QStringLiteral(" kB's");
}

QString patternOf(const QString& fileTypeEntry)
{
    const int open = fileTypeEntry.indexOf(QLatin1Char('['));
    const int close = fileTypeEntry.indexOf(QLatin1Char(']'));
    if (open < 0 || close <= open)
        return {};
    return fileTypeEntry.mid(open + 1, close - open - 1);
}

namespace {
QToolButton* panelButton(const QString& name, const QString& tip, QWidget* parent)
{
    auto* b = named(new QToolButton(parent), name);
    b->setToolTip(tip);
    b->setIcon(Look::menuIcon(tip));
    b->setIconSize(QSize(24, 24));
    b->setAutoRaise(true);
    b->setCheckable(true);
    b->setAutoExclusive(true);
    b->setFixedSize(32, 32);
    return b;
}
}

void frmMain::buildLeftPane(QFrame* holder)
{
    auto* row = static_cast<QHBoxLayout*>(holder->layout());

    LeftTool = named(new QFrame(holder), QStringLiteral("LeftTool"));
    LeftTool->setStyleSheet(QStringLiteral("QFrame#LeftTool { background-color: %1; }").arg(Look::face.name()));
    toolStrip = new QVBoxLayout(LeftTool);
    toolStrip->setContentsMargins(2, 4, 2, 4);
    toolStrip->setSpacing(2);
    toolStrip->addStretch();
    row->insertWidget(0, LeftTool);

    panelHost = new QFrame(holder);
    panelStack = new QStackedLayout(panelHost);
    row->insertWidget(1, panelHost, 1);

    frfiles = buildFilePanel();
    frproject = buildProjectPanel();
    addSidePanel(frfiles, panelButton(QStringLiteral("SmartNetButton61"), QStringLiteral("Open Files"), LeftTool));
    addSidePanel(createLibraryPanel(panelHost), panelButton(QStringLiteral("SmartNetButton62"), QStringLiteral("Show the Library"), LeftTool));
    addSidePanel(createCharacterPanel(panelHost), panelButton(QStringLiteral("SmartNetButton63"), QStringLiteral("Character List"), LeftTool));
    addSidePanel(createScriptPanel(panelHost), panelButton(QStringLiteral("SmartNetButton64"), QStringLiteral("Javascript examples"), LeftTool));
    addSidePanel(frproject, panelButton(QStringLiteral("SmartNetButton66"), QStringLiteral("Project window"), LeftTool));
    hint(holder, QStringLiteral("Hover Over various menu's  for a description ....\n(BETA 1 Version)"));
}

void frmMain::addSidePanel(QFrame* panel, QToolButton* button)
{
    panel->setParent(panelHost);
    panelStack->addWidget(panel);
    button->setParent(LeftTool);
    // The strip keeps the order of the five: files, library, characters, scripts, project.
    static const QStringList order = {QStringLiteral("SmartNetButton61"), QStringLiteral("SmartNetButton62"),
                                      QStringLiteral("SmartNetButton63"), QStringLiteral("SmartNetButton64"),
                                      QStringLiteral("SmartNetButton66")};
    int at = 0;
    for (int i = 0; i < toolStrip->count(); ++i)
        if (QWidget* w = toolStrip->itemAt(i)->widget(); w && order.indexOf(w->objectName()) < order.indexOf(button->objectName()))
            at = i + 1;
    toolStrip->insertWidget(at, button);
    connect(button, &QToolButton::clicked, this, Event([this, panel] { showPanel(panel); }));
    if (panel->objectName() == QLatin1String("frlibrary"))
        frlibrary = panel;
    else if (panel->objectName() == QLatin1String("frjavascript"))
        frjavascript = panel;
    else if (panel->objectName() == QLatin1String("frchr"))
        frchr = panel;
}

QList<QFrame*> frmMain::sidePanels() const
{
    QList<QFrame*> list;
    for (int i = 0; i < panelStack->count(); ++i)
        list.append(static_cast<QFrame*>(panelStack->widget(i)));
    return list;
}

void frmMain::showPanel(QFrame* panel)
{
    panelStack->setCurrentWidget(panel);
    // The strip shows which panel is up.
    static const QHash<QString, QString> buttonOf = {
        {QStringLiteral("frfiles"), QStringLiteral("SmartNetButton61")},
        {QStringLiteral("frlibrary"), QStringLiteral("SmartNetButton62")},
        {QStringLiteral("frchr"), QStringLiteral("SmartNetButton63")},
        {QStringLiteral("frjavascript"), QStringLiteral("SmartNetButton64")},
        {QStringLiteral("frproject"), QStringLiteral("SmartNetButton66")},
    };
    if (auto* b = LeftTool->findChild<QToolButton*>(buttonOf.value(panel->objectName())))
        b->setChecked(true);
}

QFrame* frmMain::buildFilePanel()
{
    QFrame* panel = Look::headedFrame(QStringLiteral("frfiles"), QStringLiteral("Open Files ::"), nullptr);
    auto* v = static_cast<QVBoxLayout*>(panel->layout());

    Combo3 = named(new QComboBox(panel), QStringLiteral("Combo3"));
    Combo3->setToolTip(QStringLiteral("Select the File Type"));
    auto* refresh = named(new QToolButton(panel), QStringLiteral("SmartNetButton71"));
    refresh->setToolTip(QStringLiteral("Refresh Directory Structure"));
    refresh->setIcon(Look::menuIcon(QStringLiteral("Refresh Directory Structure")));
    refresh->setAutoRaise(true);
    auto* typeRow = new QHBoxLayout;
    typeRow->addWidget(Combo3, 1);
    typeRow->addWidget(refresh);
    v->addLayout(typeRow);

    PicBrowse = named(new DirListBox(panel), QStringLiteral("PicBrowse"));
    v->addWidget(PicBrowse, 2);

    File1 = named(new FileListBox(panel), QStringLiteral("File1"));
    File1->hide();

    ListView1 = named(new QTreeWidget(panel), QStringLiteral("ListView1"));
    ListView1->setRootIsDecorated(false);
    ListView1->setAlternatingRowColors(true);
    ListView1->setColumnCount(0);
    v->addWidget(ListView1, 3);

    auto* openRow = new QHBoxLayout;
    openRow->addWidget(new QLabel(QStringLiteral("Open File As"), panel));
    openchoice = named(new QComboBox(panel), QStringLiteral("openchoice"));
    openRow->addWidget(openchoice, 1);
    v->addLayout(openRow);

    connect(PicBrowse, &DirListBox::Change, this, Event([this](const QString& path) {
        File1->setPath(path);
        fillFileList();
    }));
    connect(Combo3, &QComboBox::textActivated, this, Event([this](const QString& text) {
        File1->setPattern(patternOf(text));
        fillFileList();
    }));
    connect(refresh, &QToolButton::clicked, this, Event([this] {
        File1->refresh();
        fillFileList();
    }));
    connect(ListView1, &QTreeWidget::itemDoubleClicked, this, Event([this](QTreeWidgetItem* item) {
        openChosenFile(item->data(0, Qt::UserRole).toString());
    }));
    connect(File1, &FileListBox::fileActivated, this, Event([this](const QString& path) { openChosenFile(path); }));

    hint(ListView1, QStringLiteral("Double click to open an existing document."));
    hint(File1, QStringLiteral("Double click to open an existing document."));
    hint(PicBrowse, QStringLiteral("Select a root folder to browse."));
    return panel;
}

void frmMain::fillFileList()
{
    if (File1->count() == 0) {
        ListView1->clear();
        return;
    }
    ListView1->clear();
    ListView1->setHeaderLabels({QStringLiteral("File's"), QStringLiteral("Size"), QStringLiteral("Modified")});
    ListView1->header()->resizeSection(1, twipsToPixels(650));
    ListView1->header()->resizeSection(0, 150);
    QString folder = File1->Path();
    if (!folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    QList<QTreeWidgetItem*> rows;
    rows.reserve(File1->count());
    for (int i = 0; i < File1->count(); ++i) {
        const QString path = folder + File1->item(i)->text();
        const QFileInfo info(path);
        auto* row = new QTreeWidgetItem({info.fileName(), fileSizeText(info.size()),
                                         QLocale().toString(info.lastModified(), QLocale::ShortFormat)});
        row->setData(0, Qt::UserRole, path);
        rows.append(row);
    }
    ListView1->addTopLevelItems(rows);
}

void frmMain::openChosenFile(const QString& path)
{
    if (path.isEmpty())
        return;
    const QString how = openchoice->currentText();
    if (how == QLatin1String("HTML"))
        OpenAsPage(path);
    else if (how == QLatin1String("Notepad"))
        OpenAsNotepad(path);
    else if (how == QLatin1String("Split HTML"))
        OpenAsSplit(path);
}

QFrame* frmMain::buildProjectPanel()
{
    // The site projects build and run the panel; the main window keeps its members by name and
    // hands the project's files to the upload window.
    QFrame* panel = ProjectPanel::create(nullptr);
    ProjectPanel* project = panel->findChild<ProjectPanel*>();
    TreeProject = project->TreeProject;
    prodate = project->prodate;
    proauthor = project->proauthor;
    prosite = project->prosite;
    projectlocation = project->projectlocation;
    connect(project->SmartNetButton69, &QToolButton::clicked, this,
            Event([project] { uploadProjectToFtp(project->files()); }));
    return panel;
}

void frmMain::showSidePanel(const QString& name)
{
    for (QFrame* panel : sidePanels())
        if (panel->objectName() == name)
            showPanel(panel);
}
