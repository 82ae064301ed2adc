#pragma once

// The page tools' windows.
void registerPagetools();
