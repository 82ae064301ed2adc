#pragma once
#include "platform/Forms.h"
#include "services/DetailsFile.h"

#include <QDialog>
#include <array>

class ColourSwatch;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// The Options dialog, and the program's settings store: a control's value is the setting.
// \Options\Details.dat only mirrors these controls.
class Options : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Options(QWidget* parent = nullptr);
    void Form_Load() override;

    DetailsRecord values() const;
    void setValues(const DetailsRecord& r);
    // Writes the 29 fields from the controls and hides the dialog. Other windows that change a
    // setting (the colour finder's presets) run it by name.
    Q_INVOKABLE void ApplyDetails();
    // Shows the page of a tree key ("root", "frstartup", ..., "frsave").
    void showPage(const QString& key);
    QString visiblePage() const;

    QTreeWidget* Tree = nullptr;
    QFrame *frstart = nullptr, *frstartup = nullptr, *frftp = nullptr, *frcolour = nullptr,
           *frheading = nullptr, *frtag = nullptr, *frmExtension = nullptr, *frsave = nullptr;

    // Start up
    QCheckBox *ToolTip = nullptr, *SFORM = nullptr, *ETAG = nullptr, *CSS = nullptr, *LNEW = nullptr;
    QComboBox* SSTART = nullptr;
    QLineEdit *carot = nullptr, *WEBFOLDER = nullptr;
    QComboBox* Combo2 = nullptr;
    // FTP (kept in the controls only)
    QLineEdit *ftpadd = nullptr, *ftpuser = nullptr, *ftppass = nullptr;
    QPushButton *SmartNetButton2 = nullptr, *Command3 = nullptr;
    // Colour
    QLineEdit *Text2 = nullptr, *Text3 = nullptr, *Text4 = nullptr;
    ColourSwatch *Shape6 = nullptr, *Shape5 = nullptr, *Shape4 = nullptr;
    QPushButton* Command1 = nullptr;
    // Headings
    std::array<QLineEdit*, 6> HeadingFont{};
    std::array<QLineEdit*, 6> HeadingSize{};
    QComboBox *Combo4 = nullptr, *Combo1 = nullptr, *Combo3 = nullptr;
    QPushButton* Command6 = nullptr;
    // Tags
    QComboBox* systype = nullptr;
    QPushButton* Command2 = nullptr;
    ColourSwatch* Shape3 = nullptr;
    QLineEdit* tagc = nullptr;
    // File extensions
    QLineEdit *txtSaveEx = nullptr, *txtOpenEx = nullptr;
    // Save
    QLabel* Label31 = nullptr;
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton3 = nullptr;

private:
    void buildPages();
    void nodeClicked(QTreeWidgetItem* item);
    void changeHeading();
    void chooseTagColour();
    QList<QFrame*> frames() const;
};

// \Options\Details.dat in the application folder.
QString detailsPath();

// The start-up's settings step. Reads the file into the Options controls and reports in the
// status bar; a missing file runs ResetDetails instead and gives false: the program has ended.
// A damaged file raises the run-time error of the field that failed.
bool LoadDetails();
// Writes the factory defaults, says so, and unloads every form, which ends the program.
void ResetDetails();
// The main window's state from SSTART: "Maximized", "Minimized"; anything else changes nothing.
void ApplyStartWindowState();
