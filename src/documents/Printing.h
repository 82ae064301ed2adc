#pragma once

// Prints the active document through its rich text copy (the notepad's own text). With a
// selection, the dialog offers to print just that.
void PrintDocument();
