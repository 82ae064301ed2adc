#pragma once
#include "wizards/WizardDialog.h"

#include <QStringList>

class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

// What the two drop-down menu wizards share: the entries are gathered one by one into two
// hidden parallel lists (texts and links) and shown in an example list; the menu is refused
// without an entry; after a menu the lists start empty again.
class DropMenuForm : public WizardDialog {
    Q_OBJECT
public:
    QLineEdit *Text1 = nullptr, *Text2 = nullptr;  // the entry's text and link
    QListWidget *List1 = nullptr, *List2 = nullptr;  // hidden: texts, links
    QComboBox* Combo1 = nullptr;                   // the example list
    QLineEdit *Text3 = nullptr, *Text5 = nullptr;  // the select's name and height
    QComboBox* Combo2 = nullptr;                   // position
    QLineEdit* Text4 = nullptr;                    // hidden: the menu as it is made
    QPushButton *Command1 = nullptr, *Command2 = nullptr;  // "Load", "Add"

    QStringList texts() const;
    QStringList links() const;

protected:
    // The entry rows, with the example list's default text and the working field's.
    DropMenuForm(const QString& caption, const QString& exampleText, const QString& workingText, QWidget* parent);
    // The rows of the select: name, position and height.
    void addSelectRows();
    // The load and close buttons.
    void addButtons();

    bool checkFields() override;
    void afterDelivery() override;

private:
    void addEntry();
};
