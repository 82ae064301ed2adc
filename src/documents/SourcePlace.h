#pragma once
#include <QString>
#include <QStringView>

// Where in a page's source a place of its preview comes from, for a Ctrl+click in the preview.
namespace SourcePlace {
// The offset in source of the index-th (from 0) start tag "<tag" (any case, followed by a blank,
// "/", ">" or the end), or -1 when there are not that many. Comments are passed over.
qsizetype tagStart(QStringView source, QStringView tag, int index);
// The offset in source for a click on an element's text: the clicked text (the text node's
// start up to its first entity, found after the element's start tag) plus where in it the click
// fell; the start of the tag when the text is not found there as written (an entity at its very
// start, text made by scripts); -1 when the element is not in the source.
qsizetype offsetOf(QStringView source, QStringView tag, int index, QStringView text, int offset);
}
