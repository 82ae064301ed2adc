#pragma once

// New pages from the start screen's fields.

// The sound tag from the music fields, then GenerateWebPage.
void PrepareSoundTag();
// A new web page window with the plain or styled skeleton.
void GenerateWebPage();
// A new split view window with the plain skeleton.
void GenerateSplitPage();
// The first page of a start-up.
void CreateStartupPage();
