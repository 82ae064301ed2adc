#pragma once
#include <QList>
#include <QString>

// The reference library: the code tree and the script list of the main window, the shorter
// code tree of the floating sidebar, and the special character table. All of it is fixed
// data compiled into the program; nothing is read from a file.
namespace ReferenceData {

// Numbers in the trees' image list.
enum Image : int {
    NoImage = 0,              // a leaf has no picture of its own for the selected state
    BranchImage = 2,
    LeafImage = 3,
    WebLinkImage = 4,
    BranchSelectedImage = 6,
    ScriptImage = 7,
};

// One tree node. The caption is also what a double click inserts; the key is unique in its
// tree (case counts: "Properties" and "properties" are two nodes). Nodes are listed in the
// order they are added, each as the last child of its parent, so a parent always comes
// before its children.
struct Node {
    QString parent;  // empty for the root
    QString key;
    QString caption;
    int image = LeafImage;
    int selectedImage = NoImage;
    bool expanded = false;  // shown open after filling

    bool isBranch() const { return image == BranchImage; }
    bool isWebLink() const { return image == WebLinkImage; }
};

// The main window's reference tree (`TreeView1`).
const QList<Node>& referenceTree();
// The main window's script list (`JavaList`): a leaf's key names its page file.
const QList<Node>& scriptList();
// The sidebar's own code tree.
const QList<Node>& sidebarTree();

// The node of that key, or null. Keys are compared exactly.
const Node* findNode(const QList<Node>& tree, const QString& key);

// The keys of the script list's leaves, in list order: one page file each.
QStringList scriptPageKeys();
// Where a script leaf's page lives below the application folder (no leading separator).
QString scriptPageRelativePath(const QString& key);

// One row of the character grid (`Flex`): the character, its name, and the text inserted.
struct CharacterRow {
    QString character;
    QString name;
    QString code;
};
const QList<CharacterRow>& characterTable();
// The widths of the grid's first two columns, in twips; the third takes what is left.
inline constexpr int characterColumnTwips[2] = {550, 2000};
// The grid column whose text is inserted.
inline constexpr int characterCodeColumn = 2;

}
