#pragma once

class QPrinter;

// The printer of this session: Print Setup sets it up and Print prints with it.
QPrinter& documentPrinter();

// Prints the active document through its rich text copy (the notepad's own text). With a
// selection, the dialog offers to print just that.
void PrintDocument();
