#pragma once
#include "wizards/MediaText.h"
#include "wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "Insert Media": a background sound or a movie at the caret, each with its own "Insert".
// Enter presses the "Insert" of the part that holds the focus.
class Media : public WizardDialog {
    Q_OBJECT
public:
    explicit Media(QWidget* parent = nullptr);
    MediaText::Sound sound() const;
    MediaText::Movie movie() const;

    QGroupBox *soundFrame = nullptr, *movieFrame = nullptr;
    // The sound.
    QLineEdit *mlocation = nullptr, *mlocation1 = nullptr, *mloop = nullptr;
    QCheckBox* Check4 = nullptr;  // "Shorten location length"
    QLabel* Label12 = nullptr;
    // The movie.
    QLineEdit *vlocation = nullptr, *vlocation1 = nullptr, *mwidth = nullptr, *mheight = nullptr, *mborder = nullptr;
    QCheckBox *Check5 = nullptr, *Check1 = nullptr;  // "Shorten location length", "Loop forever"
    QComboBox* Combo1 = nullptr;
    // "Insert" the sound, "Insert" the movie, find the movie, "Close", find the sound.
    QPushButton *Command1 = nullptr, *Command2 = nullptr, *Command3 = nullptr, *Command4 = nullptr, *Command5 = nullptr;

protected:
    QString fragment() const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Part { Sound, Movie };
    // The command of one part: its own message for an empty location, else the insert flow.
    void insertPart(Part part);

    Part current = Part::Sound;
};
