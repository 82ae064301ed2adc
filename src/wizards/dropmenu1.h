#pragma once
#include "wizards/DropMenuForm.h"
#include "wizards/DropMenuText.h"

class ColourSwatch;
class QLabel;

// "Hyperlink Drop down menu ::": the jump script and a menu of links with a button that goes to
// the chosen one. The script works for one menu per page, as the form warns.
class dropmenu1 : public DropMenuForm {
    Q_OBJECT
public:
    explicit dropmenu1(QWidget* parent = nullptr);
    DropMenuText::Jump::Fields fields() const;

    QLineEdit *Text6 = nullptr;  // hidden: the script
    QLineEdit *menutext = nullptr, *buttonname = nullptr, *Text7 = nullptr, *Text10 = nullptr, *backc = nullptr,
              *backc1 = nullptr;
    ColourSwatch *Shape1 = nullptr, *Shape2 = nullptr;
    QLabel *Label13 = nullptr, *Label14 = nullptr;
    QPushButton *Command3 = nullptr, *Command4 = nullptr, *Command5 = nullptr;  // "Choose" x2, font

protected:
    // The working field holds the menu as it goes in.
    void beforeDelivery() override;
    QString fragment() const override;
};
