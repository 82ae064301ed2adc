#pragma once

// Widths of the system are given in twips; the screen has 15 twips to the pixel.
constexpr int twipsPerPixel = 15;
constexpr int twipsToPixels(double twips) { return static_cast<int>(twips / twipsPerPixel + 0.5); }
constexpr int pixelsToTwips(int pixels) { return pixels * twipsPerPixel; }
