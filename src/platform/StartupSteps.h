#pragma once
#include <functional>

// The steps of the start-up that other parts of the program contribute: each library adds
// its work to a named step, and the initialiser runs the steps in their fixed order.
namespace StartupSteps {
enum Step {
    MainLists,        // the main window's lists
    Panels,           // the left pane shows the file panel
    ReferenceTrees,   // reference library, script list, character grid
    MainMenu,         // the main menu and its icons
    RemainingCombos,  // the heading combo and the other lists
    SyntaxLanguages,  // languages registered with the code editor
    FilePattern,      // the file list's pattern
    FontList,         // the screen fonts
    FileList,         // the file panel's list
    StepCount
};
void add(Step step, std::function<void()> work);
void run(Step step);
}
