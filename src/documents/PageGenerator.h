#pragma once
#include "documents/FrameSetText.h"
#include "documents/PageText.h"

class DocumentWindow;

// New pages from the start screen's fields. The start screen hides itself and forgets its
// sound tag once a page is made (its own steps, not the generator's).

// A new web page window with the plain or styled skeleton, named after the title.
DocumentWindow* GenerateWebPage(const PageText::Fields& fields, bool styled);
// A new split view window with the plain skeleton, named after the title.
DocumentWindow* GenerateSplitPage(const PageText::Fields& fields);
// The three pages of a frame set, each a new web page window with its caption, then the
// confirmation. Nothing is saved: the user saves them under the names the frame set expects.
void GenerateFrames(FrameSetText::Layout layout, const FrameSetText::Fields& fields);
// The first page of a start-up.
void CreateStartupPage();
