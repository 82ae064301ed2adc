#pragma once
#include <QString>
#include <QStringList>

// The three pages of a frame set from the start screen's frame fields: the index page with the
// frame set, the contents (or header) page and the main page. Values go in as they stand:
// nothing is quoted or checked.
namespace FrameSetText {

struct Fields {
    QString frsp;   // framespacing
    QString bo;     // border
    QString frbo;   // frameborder
    QString frco;   // the first frame's width (or height)
    QString Text5;  // bgColor of both frame pages
};

// "frame1": a contents column on the left; "frame2": a header row on top.
enum class Layout { Columns, Rows };

// The head every page starts with, with its title line.
QString head(const QString& titleLine);
// The index page, the contents or header page, and the main page, in that order.
QStringList pages(Layout layout, const Fields& f);
}
