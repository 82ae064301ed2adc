#pragma once
#include "platform/Forms.h"
#include "wizards/PageProperties.h"

#include <QDialog>
#include <QPointer>

class ColourSwatch;
class DocumentWindow;
class FileFacts;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class RichTextBox;

// "Page Options ::": edits the open page in place by text search in its hidden work copy
// (RichTextBox1), and shows the file's details and a notepad's font properties.
//
// Not on WizardDialog: that base owns one insert flow (refusal, a fragment at the caret,
// closing step) and a single column of rows, while this window has seven commands, each with
// its own trap and message, that rewrite the whole page, three tab controls and an activation
// step. It keeps the wizards' conventions all the same: the banner in the heading colour, the
// single hidden instance, Esc hides, Enter runs the command of the page on view.
class pageproperties : public QDialog, public Form {
    Q_OBJECT
public:
    explicit pageproperties(QWidget* parent = nullptr);

    void Form_Load() override;
    // The copy of the active page into its work copy, at every activation.
    void Form_Activate();

    // The commands.
    void Command11_Click();  // margins
    void Command2_Click();   // background
    void Command4_Click();   // text colour
    void Command5_Click();   // update the style block (work copy only)
    void Command6_Click();   // add a style block
    void Command12_Click();  // the external style sheet window

    PageProperties::LinkStyles linkStyles() const;

    QTabWidget *SSTab1 = nullptr, *SSTab2 = nullptr, *SSTab3 = nullptr;
    QCheckBox* Check1 = nullptr;
    QLineEdit *Text2 = nullptr, *Text4 = nullptr;
    QPushButton* Command11 = nullptr;
    QLineEdit* Text1 = nullptr;
    ColourSwatch* Shape1 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr;
    QLineEdit* Text3 = nullptr;
    ColourSwatch* Shape2 = nullptr;
    QPushButton *Command3 = nullptr, *Command4 = nullptr;
    QLineEdit *Text7 = nullptr, *Text8 = nullptr, *Text9 = nullptr, *Text10 = nullptr;
    QComboBox *Combo7 = nullptr, *Combo8 = nullptr, *Combo9 = nullptr, *Combo10 = nullptr;
    QPushButton *Command7 = nullptr, *Command8 = nullptr, *Command9 = nullptr, *Command10 = nullptr;
    ColourSwatch *Shape7 = nullptr, *Shape8 = nullptr, *Shape9 = nullptr, *Shape10 = nullptr;
    QPushButton *Command5 = nullptr, *Command6 = nullptr;
    QGroupBox *Frame1 = nullptr, *Frame2 = nullptr;  // internal and external style sheets
    QCheckBox* CSS = nullptr;
    QPushButton* Command12 = nullptr;
    QLineEdit *Text5 = nullptr, *Text6 = nullptr, *Text11 = nullptr;
    QCheckBox *Check2 = nullptr, *Check3 = nullptr, *Check4 = nullptr;
    QLabel *Filenae = nullptr, *Location = nullptr, *Extension = nullptr, *Filesize = nullptr, *Modified = nullptr,
           *datecreated = nullptr, *Readonly = nullptr, *Filehidden = nullptr;
    QLabel *Label3 = nullptr, *Label24 = nullptr, *Label25 = nullptr, *Label26 = nullptr, *Label30 = nullptr;

protected:
    void showEvent(QShowEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    QWidget* pageTab();
    QWidget* styleTab();
    QWidget* linksTab();
    QWidget* detailsTab();
    QWidget* notepadTab();
    void followTabs();

    // The work copy of a document: its RichTextBox1's text and selection, exact to the line
    // ends of the page (the box itself keeps every line end as CR LF).
    PageProperties::WorkCopy workCopy(RichTextBox* box) const;
    // Puts a command's result into the box (and remembers its exact text); false when the
    // command failed on the selection, after the steps before that were applied.
    bool store(RichTextBox* box, const PageProperties::Result& r);
    // CodeMax1's text becomes the work copy's.
    void copyBack();
    void fillFileDetails(DocumentWindow* doc);
    void fillNotepadValues(DocumentWindow* doc);

    FileFacts* facts = nullptr;
    bool activating = false;
    // The page's text with its own line ends, while the box still holds that text.
    QPointer<RichTextBox> exactBox;
    QString exactText;
};
