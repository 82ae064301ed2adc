#pragma once
#include <QString>

// The branches of the main menu's dispatcher, registered under their keys.
void registerMenuCommands();

// A snippet key's fragment as it goes in at the caret, line ends included ("" when the key
// inserts nothing). Time and date are today's.
QString menuSnippet(const QString& key);

// The address behind an online key ("EasyRGB", "Developerfusion", "MSDN", "Velloro Online"):
// the configuration file "Options/Online.ini" may override the built-in ones.
QString onlineAddress(const QString& key);

// The font tools of the button bar: a heading size digit, a face name, a heading level. In a
// web page each writes its tag at the caret; in a notepad it sets the selection's font.
void applyFontSize(const QString& chosen);
void applyFontFace(const QString& face);
void insertHeading(int level);
