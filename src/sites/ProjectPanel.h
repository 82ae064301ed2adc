#pragma once
#include "sites/SiteFiles.h"

#include <QList>
#include <QObject>
#include <QPair>

class QFrame;
class QLabel;
class QPushButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

// The project panel `frproject` of the main window's left holder: the project's facts, the
// tree of its files and the four project buttons. The main window places the panel and
// switches it with the others; everything the panel does lives here.
class ProjectPanel : public QObject {
    Q_OBJECT
public:
    // The panel of the main window, built and working; the ProjectPanel is a child of the frame.
    static QFrame* create(QWidget* parent);
    // The main window's panel (the main window is loaded on first touch).
    static ProjectPanel* instance();

    // Shows a read project: the tree of its files, the facts of its header, its location; then
    // brings the panel up in the left holder.
    void show(const SiteFiles::Project& project, const QString& path);
    // Closes the project (asks first); nothing on disk is touched.
    void ProjectDelete_Click();
    void ProjectLoad_Click();
    void TreeProject_DblClick(QTreeWidgetItem* node);
    // The project's files as the upload queue takes them: (bare name, path), the root left out.
    QList<QPair<QString, QString>> files() const;

    QFrame* frproject = nullptr;
    QTreeWidget* TreeProject = nullptr;
    QLabel *prodate = nullptr, *proauthor = nullptr, *prosite = nullptr, *projectlocation = nullptr;
    QPushButton *ProjectLoad = nullptr, *ProjectNew = nullptr, *ProjectAdd = nullptr, *ProjectDelete = nullptr;
    QToolButton* SmartNetButton69 = nullptr;

private:
    explicit ProjectPanel(QFrame* panel);
    void clearTree();
};
