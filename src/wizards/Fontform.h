#pragma once
#include "wizards/WizardDialog.h"

class ColourSwatch;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class RichTextBox;

// "Font ::": the font of a notepad's rich text (no markup). It applies the chosen font, size and
// colour to the active document's rich text: all of it, or the selection (which with nothing
// selected is the text typed next). The style list is shown and never applied.
class Fontform : public WizardDialog {
    Q_OBJECT
public:
    explicit Fontform(QWidget* parent = nullptr);

    // The apply command: every statement on its own, a failing one skipped; then the form hides.
    void Command3_Click();

    QComboBox *Combo1 = nullptr, *Combo2 = nullptr, *Combo3 = nullptr;  // font, style, size
    QLineEdit* colortext = nullptr;
    ColourSwatch* Shape1 = nullptr;
    QCheckBox *Check1 = nullptr, *Check2 = nullptr;
    RichTextBox* PREVIEWTEXT = nullptr;
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr;  // "Choose", "Cancel", "Apply"

private:
    void selectPreview();
};
