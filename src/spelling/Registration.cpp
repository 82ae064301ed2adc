#include "spelling/Registration.h"

#include "documents/notepad.h"
#include "services/Commands.h"
#include "services/Workspace.h"
#include "spelling/clsSpell.h"

void registerSpelling()
{
    // A notepad owns its checker from the moment it joins the main window.
    QObject::connect(&DocumentEvents::instance(), &DocumentEvents::documentAdded, [](DocumentWindow* doc) {
        if (auto* pad = qobject_cast<notepad*>(doc)) {
            spellcheckerOf(pad);
            QObject::connect(pad, &notepad::spellCheckRequested, pad, [pad] { startSpellCheck(pad); });
        }
    });
    Commands::add(QStringLiteral("Spell Checker"), [] { SpellCheckActiveDocument(); });
}
