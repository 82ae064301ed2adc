#include "sites/ProjectPanel.h"

#include "documents/TemplateOpen.h"
#include "platform/EventProcedure.h"
#include "platform/Forms.h"
#include "platform/Look.h"
#include "platform/Prompts.h"
#include "services/Commands.h"
#include "services/Workspace.h"
#include "sites/SiteManagment.h"

#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using Look::named;

namespace {
const QString rootKey = QStringLiteral("root");
constexpr int KeyRole = Qt::UserRole;
// The image of a file's node in the main window's tree image list.
constexpr int fileImage = 7;
// The shown default of an empty panel.
const QString none = QStringLiteral("None");
}

QFrame* ProjectPanel::create(QWidget* parent)
{
    QFrame* panel = Look::headedFrame(QStringLiteral("frproject"), QStringLiteral("Project ::"), parent);
    new ProjectPanel(panel);
    return panel;
}

ProjectPanel* ProjectPanel::instance()
{
    QWidget* main = Forms::get(QStringLiteral("frmMain"));
    return main->findChild<ProjectPanel*>();
}

ProjectPanel::ProjectPanel(QFrame* panel) : QObject(panel), frproject(panel)
{
    auto* v = static_cast<QVBoxLayout*>(panel->layout());
    // Two rows of two: the pane is narrow.
    auto* buttons = new QGridLayout;
    buttons->setSpacing(3);
    const std::pair<const char*, QPushButton**> projectButtons[] = {
        {"ProjectLoad", &ProjectLoad}, {"ProjectNew", &ProjectNew}, {"ProjectAdd", &ProjectAdd}, {"ProjectDelete", &ProjectDelete}};
    const char* captions[] = {"Load", "New", "Add", "Close"};
    const char* tips[] = {"Load a project", "Create a new site with the Site Wizard", "Add a file to the project",
                          "Close the project (nothing is deleted)"};
    int i = 0;
    for (const auto& [name, member] : projectButtons) {
        *member = Look::faceButton(QString::fromLatin1(name), QString::fromLatin1(captions[i]), panel);
        (*member)->setIcon(Look::menuIcon(QString::fromLatin1(name)));
        (*member)->setToolTip(QString::fromLatin1(tips[i]));
        buttons->addWidget(*member, i / 2, i % 2);
        ++i;
    }
    v->addLayout(buttons);

    TreeProject = named(new QTreeWidget(panel), QStringLiteral("TreeProject"));
    TreeProject->setHeaderHidden(true);
    TreeProject->setUniformRowHeights(true);
    TreeProject->setIconSize(QSize(16, 16));
    TreeProject->setIndentation(14);
    TreeProject->setToolTip(QStringLiteral("Double click a file to open it."));
    v->addWidget(TreeProject, 1);

    auto* form = new QGridLayout;
    const std::pair<const char*, QLabel**> labels[] = {
        {"prodate", &prodate}, {"proauthor", &proauthor}, {"prosite", &prosite}, {"projectlocation", &projectlocation}};
    const char* labelCaptions[] = {"Date :", "Author :", "Site :", "Location :"};
    int r = 0;
    for (const auto& [name, member] : labels) {
        form->addWidget(new QLabel(QString::fromLatin1(labelCaptions[r]), panel), r, 0, Qt::AlignTop);
        *member = named(new QLabel(none, panel), QString::fromLatin1(name));
        (*member)->setWordWrap(true);
        (*member)->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addWidget(*member, r, 1);
        ++r;
    }
    projectlocation->clear();
    form->setColumnStretch(1, 1);
    v->addLayout(form);

    SmartNetButton69 = named(new QToolButton(panel), QStringLiteral("SmartNetButton69"));
    SmartNetButton69->setToolTip(QStringLiteral("Upload Project To FTP Server"));
    // The same words on two lines, so the narrow pane shows them whole.
    SmartNetButton69->setText(QStringLiteral("Upload Project\nTo FTP Server"));
    SmartNetButton69->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    SmartNetButton69->setIcon(Look::menuIcon(QStringLiteral("Upload Project To FTP Server")));
    SmartNetButton69->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    v->addWidget(SmartNetButton69);

    connect(ProjectLoad, &QPushButton::clicked, this, Event([this] { ProjectLoad_Click(); }));
    connect(ProjectNew, &QPushButton::clicked, this, Event([] { showForm(QStringLiteral("SiteManagment")); }));
    connect(ProjectAdd, &QPushButton::clicked, this, Event([] { showForm(QStringLiteral("ProjAdd")); }));
    connect(ProjectDelete, &QPushButton::clicked, this, Event([this] { ProjectDelete_Click(); }));
    connect(TreeProject, &QTreeWidget::itemDoubleClicked, this, Event([this](QTreeWidgetItem* node) { TreeProject_DblClick(node); }));
}

void ProjectPanel::clearTree()
{
    TreeProject->clear();
}

void ProjectPanel::show(const SiteFiles::Project& project, const QString& path)
{
    clearTree();
    auto* root = new QTreeWidgetItem(TreeProject, {QStringLiteral("Project Files")});
    root->setData(0, KeyRole, rootKey);
    // Keys are unique in the tree: a path listed twice keeps its first node, the line stays in
    // the file.
    QSet<QString> keys{rootKey};
    QList<QTreeWidgetItem*> children;
    children.reserve(project.paths.size());
    const QIcon icon = Look::treeImage(fileImage);
    for (const QString& p : project.paths) {
        if (!p.isEmpty() && keys.contains(p))
            continue;
        keys.insert(p);
        auto* node = new QTreeWidgetItem({SiteFiles::nodeText(p)});
        node->setData(0, KeyRole, p);
        node->setIcon(0, icon);
        node->setToolTip(0, p);
        children.append(node);
    }
    root->addChildren(children);
    proauthor->setText(project.line(2));
    prodate->setText(project.line(3));
    prosite->setText(project.line(1));
    root->setExpanded(true);
    projectlocation->setText(path);
    workspace().showSidePanel(QStringLiteral("frproject"));
}

void ProjectPanel::ProjectLoad_Click()
{
    const QString path = prompts().openFile({}, QStringLiteral("Project Details (*.dat)"), {});
    if (path.isEmpty())
        return;
    form<SiteManagment>()->LoadProject(path);
}

void ProjectPanel::ProjectDelete_Click()
{
    if (MsgBox(QStringLiteral("Would you like to close the Project?"), Style::YesNoCancel + Style::Exclamation,
               QStringLiteral(":: Velloro 2002 ::")) != Answer::Yes)
        return;
    clearTree();
    projectlocation->clear();
    proauthor->setText(none);
    prodate->setText(none);
    prosite->setText(none);
}

void ProjectPanel::TreeProject_DblClick(QTreeWidgetItem* node)
{
    if (!node)
        return;
    const QString key = node->data(0, KeyRole).toString();
    if (key.isEmpty() || key == rootKey || key == QLatin1String("child1_root"))
        return;
    OpenTemplatePage(key);
}

QList<QPair<QString, QString>> ProjectPanel::files() const
{
    QList<QPair<QString, QString>> list;
    QTreeWidgetItem* root = TreeProject->topLevelItem(0);
    if (!root)
        return list;
    list.reserve(root->childCount());
    for (int i = 0; i < root->childCount(); ++i)
        list.append({root->child(i)->text(0), root->child(i)->data(0, KeyRole).toString()});
    return list;
}
