#pragma once
#include "platform/Forms.h"

#include <QDialog>
#include <QPoint>
#include <array>

class ColourSwatch;
class PalettePicture;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class ShadeBar;

// "Color Finder ::": a colour found on the palette, the shade bar or among sixteen named
// colours, handed over as "#RRGGBB" text through the clipboard; three presets kept with the
// settings. It never touches the document.
class cfinderform : public QDialog, public Form {
    Q_OBJECT
public:
    explicit cfinderform(QWidget* parent = nullptr);
    void Form_Load() override;
    // Saves the settings (the presets among them) as the window goes.
    bool Unload() override;

    // The three blender slots drawn into the shade bar.
    void drawBlender();
    // A click on the shade bar at a point of the screen.
    void Piccolor_Click(const QPoint& global);
    // The palette's mouse: the pressed flag, the swatch following the pointer, the pick.
    void ColPal_MouseDown();
    void ColPal_MouseMove(int colour);
    void ColPal_MouseUp(int colour);
    // Named colour button n (2 to 17).
    void namedColour_Click(int n);
    // "Set" of preset n (1 to 3); "Copy" of a field.
    void setPreset(int n);
    void copyField(const QLineEdit* field);
    // Shows the mixer (true) or the named colours.
    void showMixer(bool mixer);

    QFrame *FrMixer = nullptr, *frWSafe = nullptr;
    PalettePicture* ColPal = nullptr;
    ShadeBar* Piccolor = nullptr;
    ColourSwatch* Picture1 = nullptr;
    QLineEdit* txtcolor = nullptr;
    QLineEdit *Text2 = nullptr, *Text3 = nullptr, *Text4 = nullptr;
    ColourSwatch *Shape1 = nullptr, *Shape2 = nullptr, *Shape3 = nullptr;
    QPushButton *Command1 = nullptr, *Command8 = nullptr, *Command9 = nullptr, *Command10 = nullptr,
                *Command11 = nullptr, *Command12 = nullptr, *Command13 = nullptr;
    QPushButton *SmartNetButton1 = nullptr, *SmartNetButton18 = nullptr;
    std::array<QPushButton*, 16> named{};  // SmartNetButton2 to SmartNetButton17
    QLabel* Label5 = nullptr;

    // The blender's three slot colours; the palette's pressed flag (-1 down, 0 up).
    std::array<int, 3> blendSlots{};
    int mouseDown = 0;
    // The colour last picked from the palette (the program's current colour).
    static int currentColour;

private:
    QLineEdit* presetField(int n) const;
    ColourSwatch* presetShape(int n) const;
    // The last screen position a shade bar click read; a click at the same place reads nothing.
    QPoint lastPosition{-1, -1};
    bool havePosition = false;
};
