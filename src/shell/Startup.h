#pragma once
#include "platform/Forms.h"
#include "documents/PageText.h"

#include <QDialog>
#include <functional>

class ColourSwatch;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;

// The start screen: the task list, and the fields the page generator reads whether the
// window is on screen or not.
class Startup : public QDialog, public Form {
    Q_OBJECT
public:
    explicit Startup(QWidget* parent = nullptr);
    void Form_Load() override;

    // Shows one of the four frames and hides the others.
    void showFrame(QFrame* frame);

    QFrame *frstartup = nullptr, *frsingle = nullptr, *CSSFrame = nullptr, *frframe = nullptr;
    // Task list
    QLabel *Label3 = nullptr, *Label4 = nullptr, *Label5 = nullptr;
    QCheckBox* Check1 = nullptr;
    QLabel* ToolTip = nullptr;
    // Single page wizard
    QLabel* Label30 = nullptr;
    QLineEdit *title = nullptr, *Text3 = nullptr, *Text4 = nullptr, *mlocation = nullptr, *mloop = nullptr,
              *bpic = nullptr, *Text1 = nullptr;
    QCheckBox *Check2 = nullptr, *CSS = nullptr;
    ColourSwatch *Shape3 = nullptr, *Shape4 = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr,
                *Command5 = nullptr, *Command7 = nullptr;
    // Link colours
    QLineEdit *Text7 = nullptr, *Text8 = nullptr, *Text9 = nullptr, *Text10 = nullptr;
    QComboBox *Combo7 = nullptr, *Combo8 = nullptr, *Combo9 = nullptr, *Combo10 = nullptr;
    ColourSwatch *Shape7 = nullptr, *Shape8 = nullptr, *Shape9 = nullptr, *Shape10 = nullptr;
    QPushButton *Command6 = nullptr, *Command8 = nullptr, *Command9 = nullptr, *Command10 = nullptr,
                *Command12 = nullptr, *Command13 = nullptr;
    // Frame-set page
    QLineEdit *frsp = nullptr, *bo = nullptr, *frbo = nullptr, *frco = nullptr, *Text5 = nullptr;
    ColourSwatch* Shape5 = nullptr;
    QPushButton *Command14 = nullptr, *Command16 = nullptr, *Command11 = nullptr, *SmartNetButton1 = nullptr;

    // The hint of a task: its marker shows and the hint box takes the text; moving over the
    // frame itself clears both.
    void showHint(QLabel* marker, const QString& text);
    void clearHints();
    QList<QLabel*> markers;

    // The frame-set generators run the command of their toolbar key ("frame1" columns,
    // "frame2" rows); a key without one stays disabled.
    QToolBar* Toolbar1 = nullptr;

    // The fields a new page is made of, and the style sheet tick: the generators take them
    // from here.
    PageText::Fields pageFields() const;
    bool styledPage() const;
    // The new pages of the wizard and the menu: the page, then this window hides and forgets
    // its sound tag.
    void GenerateWebPage();
    void GenerateSplitPage();
    // The sound tag from the music fields, then GenerateWebPage.
    void PrepareSoundTag();

protected:
    void showEvent(QShowEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildTaskList();
    void buildSinglePage();
    void buildStylePage();
    void buildFramePage();
    void Check1_Click();
    void next();
};
