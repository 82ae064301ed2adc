#pragma once

// Registers the style sheet windows by their names.
void registerStylesheets();
