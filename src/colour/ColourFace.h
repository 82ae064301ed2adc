#pragma once

class QPushButton;

// Gives a button a colour for its face (a platform value, red in the low byte), its text in
// black or white, whichever reads on that face, and the look's face colour as its edge under
// the pointer.
void setColourFace(QPushButton* button, int platformColour);
