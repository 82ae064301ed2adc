#pragma once
#include "wizards/ImageText.h"
#include "wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "Load An Image ::": a picture at the caret, sized from the picture file; or, asked to and with
// a notepad active, the picture itself in the notepad's text.
class imageform : public WizardDialog {
    Q_OBJECT
public:
    explicit imageform(QWidget* parent = nullptr);
    ImageText::Fields fields() const;

    QLineEdit *Location = nullptr, *location1 = nullptr;
    QPushButton* find = nullptr;
    QCheckBox* Check2 = nullptr;  // "Shorten location length"
    // The preview, and the hidden auto-sizing box that takes the picture's natural size.
    QLabel *Picture1 = nullptr, *Picture2 = nullptr;
    QLineEdit *picwidth = nullptr, *picheight = nullptr;
    QLineEdit *picwidth1 = nullptr, *picheight1 = nullptr;  // the natural size, kept
    QCheckBox *Check3 = nullptr, *Check4 = nullptr;        // "Maintain Aspect Ratio", "Size In Percent"
    QComboBox* align = nullptr;
    QLineEdit* picborder = nullptr;
    QCheckBox* Check5 = nullptr;  // "Style Absolute Enabled"
    QLineEdit *txleft = nullptr, *txtop = nullptr;
    QLabel* Label8 = nullptr;
    QCheckBox* Check1 = nullptr;  // "Insert into  a Notepad document"
    QLineEdit* Text1 = nullptr;   // the working string
    QPushButton *Command1 = nullptr, *Command2 = nullptr;  // "Insert ...", "Close"

protected:
    void beforeDelivery() override;
    QString fragment() const override;
    void afterDelivery() override;

private:
    // The step behind `find` once the location holds the chosen file.
    void loadPicture(const QString& path);
    void showPreview(const QString& path);
    // The notepad branch: the picture of the location into the notepad's text.
    void addToNotepad();

    bool measuring = false;  // the natural size is being written: no aspect-ratio step
};
