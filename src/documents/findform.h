#pragma once
#include "platform/Forms.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;

// Find and replace in the active document. The search runs on the window's rich text box:
// in a code window that is the hidden work copy, refreshed from the editor when this window
// is activated and copied back to the editor as a whole after a replacement.
class findform : public QDialog, public Form {
    Q_OBJECT
public:
    explicit findform(QWidget* parent = nullptr);
    void Form_Load() override;

    // The event procedures, reachable as the window's own events and buttons run them.
    // Showing the window takes a fresh copy of the editor's text; returning to it refreshes
    // the copy when the editor's text has changed.
    void Form_Activate();
    void Form_Deactivate();
    void Command1_Click();   // Find
    void Command2_Click();   // Replace
    void Command3_Click();   // Find Next
    void Command4_Click();   // Close, after copying back
    void Command5_Click();   // Show Advanced

    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    QPushButton* Command5 = nullptr;
    QCheckBox* Check1 = nullptr;

protected:
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    // The work copy of a code window takes the editor's text; when not always, only if it
    // differs.
    void refreshCopy(bool always);
    // Replace is possible only straight after a successful find.
    void allowReplace(bool on);
    void say(const QString& text);

    // While one of our own message boxes is up, the window loses the focus to it; that is
    // not the user leaving the window.
    int promptDepth = 0;
};

