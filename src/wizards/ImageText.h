#pragma once
#include <QString>

#include <optional>

// The picture wizard's fragment, its natural size and its aspect ratio.
namespace ImageText {

struct Fields {
    QString Location;
    QString picwidth;
    QString picheight;
    bool percent = false;   // Check4 "Size In Percent"
    QString align = QStringLiteral("Center");
    QString picborder;
    bool absolute = false;  // Check5 "Style Absolute Enabled"
    QString txleft;
    QString txtop;
};

// The style form (absolute position) or the paragraph form; no line end.
QString fragment(const Fields& f);

// The natural size a picture of so many pixels gets: the twips of its auto-sizing box (15 to the
// pixel) divided by 15.15, with its fraction (100 pixels give 99.009900990099).
QString naturalSize(int pixels);

// The height that keeps the aspect ratio: picwidth times (picheight1 divided by picwidth1),
// unrounded. Nothing when a value is no number or the arithmetic fails (a copy of 0).
std::optional<QString> keptHeight(const QString& picwidth, const QString& picheight1, const QString& picwidth1);
}
