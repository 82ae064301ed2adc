#pragma once
#include <QFrame>

// A shape that shows a colour: the swatches beside the colour fields.
class ColourSwatch : public QFrame {
    Q_OBJECT
public:
    explicit ColourSwatch(const QString& name, QWidget* parent = nullptr);
    int BackColor() const { return colour; }  // platform colour value, red in the low byte
    void setBackColor(int platformColour);

private:
    int colour = 0xFFFFFF;
};

class QLineEdit;

// What a cancelled colour dialog does: nothing, or (the wizards' convention, where a cancel is
// not told apart) apply the colour the dialog held, which is the swatch's.
enum class OnCancel { Keep, ApplyHeld };

// The "Choose" step of every colour button: the colour dialog, then the swatch takes the
// colour and the field its text form (with its double quotes when the field holds them).
// False when the user cancelled.
bool chooseColourInto(QLineEdit* field, ColourSwatch* swatch, bool withQuotes, OnCancel onCancel = OnCancel::Keep);
