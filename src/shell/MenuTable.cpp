#include "shell/MenuTable.h"

namespace {
// Keys of the virtual key codes the table uses.
constexpr int vkF1 = 112, vkF2 = 113;

struct Row {
    const char* parent;
    const char* key;
    const char* caption;
    int style;
    int shortcut;
    bool enabled;
};

constexpr bool on = true, off = false;

// The menu, in creation order. Captions are the program's own, spelling and all.
constexpr Row rows[] = {
    {"", "keyFile", "&File", 2, 0, on},
    {"", "keyEdit", "&Edit", 2, 0, on},
    {"", "keyView", "&View", 2, 0, on},
    {"", "keyInsert", "&Insert", 2, 0, on},
    {"", "keyText", "&Text", 2, 0, on},
    {"", "keyMacro", "&Macro", 2, 0, on},
    {"", "keyTools", "T&ools", 2, 0, on},
    {"", "keyWindow", "&Window", 2, 0, on},
    {"", "keyHelp", "&Help", 2, 0, on},

    {"keyFile", "keyNew", "&New", 2, 'O', on},
    {"keyFile", "KeyOpen", "&Open", 2, 'S', on},
    {"keyFile", "Web", "Web", 2, 'Q', on},
    {"keyFile", "Save", "Save", 4, 0, on},
    {"KeyFile", "Save As", "Save As", 2, 'S', on},
    {"KeyFile", "KeyTemplates", "Templates", 4, 0, on},
    {"KeyFile", "KeyAdvanced", "Advanced Files", 2, 0, on},
    {"KeyFile", "Properties", "Page Properties", 4, vkF2, on},
    {"KeyFile", "Printsetup", "Print Setup", 4, 0, on},
    {"KeyFile", "Print", "Print", 2, 'P', on},
    {"KeyFile", "Close", "Close", 4, 0, on},
    {"KeyFile", "Close All", "Close All", 2, 0, off},
    {"KeyFile", "Exit", "&Exit", 4, 0, on},

    {"keyNew", "Main New Window", "StartUp Window", 2, 0, on},
    {"keyNew", "Site Managment", "Site Managment Solution", 2, 0, on},
    {"keyNew", "Quick html Page", "Quick html Page", 4, 0, on},
    {"keyNew", "Quick Split html Page", "Quick Split html Page", 2, 0, on},
    {"keyNew", "Quick Notepad", "Quick Notepad", 2, 0, on},
    {"keyNew", "Quick Note", "Quick Note", 4, vkF1, on},
    {"keyNew", "CSS Document", "Create + Edit .CSS Documents", 2, 0, on},

    {"keyOpen", "From Files", "From Files", 2, 0, on},
    {"keyOpen", "From Templates", "From Templates", 2, 0, on},
    {"keyOpen", "From Note's", "From Quick Note's", 2, vkF1, on},
    {"keyOpen", "From Internet", "Open From Internet", 4, 0, on},

    {"Top", "KeyFTP", "Upload Via FTP", 2, 0, on},
    {"Top", "EasyRGB", "EasyRGB.com", 4, 0, on},
    {"Top", "Developerfusion", "Developerfusion.com", 2, 0, on},
    {"Top", "MSDN", "Microsoft MSDN", 2, 0, on},

    {"KeyFTP", "Create FTP Profile's", "Create FTP Profile's", 2, 0, on},

    {"KeyTemplates", "Velloro Templates", "Velloro Templates", 2, 0, on},
    {"KeyTemplates", "Load Own Templates", "Load Own Templates", 2, 0, on},
    {"KeyTemplates", "Create Templates", "Create/Save Own Templates", 4, 0, on},

    {"KeyAdvanced", "Insert .CSV File", "Insert .CSV File", 2, 0, on},
    {"KeyAdvanced", "Insert TAB File", "Insert Tab-delimited File", 2, 0, on},
    {"KeyAdvanced", "Email File", "Email File", 4, 0, on},
    {"KeyAdvanced", "Delete Current File", "Delete Current File", 4, 0, off},
    {"KeyAdvanced", "Delete Files", "Delete Files", 2, 0, off},

    {"keyEdit", "Undo", "Undo", 2, 0, on},
    {"keyEdit", "Redo", "Redo", 2, 0, on},
    {"keyEdit", "Cut", "Cut", 4, 0, on},
    {"KeyEdit", "Copy", "Copy", 2, 0, on},
    {"KeyEdit", "Paste", "Paste", 2, 0, on},
    {"KeyEdit", "Select All", "Select All", 4, 0, on},
    {"KeyEdit", "Delete Selected", "Delete Selected", 2, 0, on},
    {"KeyEdit", "Delete Current Line", "Delete Current Line", 2, 0, on},
    {"KeyEdit", "Clear Clipboard", "Clear Clipboard", 2, 0, on},
    {"KeyEdit", "Find + Replace", "Find + Replace", 4, 0, on},
    {"KeyEdit", "GoTo Line", "GoTo Line", 2, 0, on},
    {"KeyEdit", "Previous Line", "Previous Line", 4, 0, on},
    {"KeyEdit", "Next Line", "Next Line", 2, 0, on},

    {"keyView", "KeyToolbarAlign", "Toolbar Align", 2, 0, on},
    {"keyView", "Tooltip Box", "Tooltip Box", 2, 0, on},
    {"KeyView", "Quick Bar", "Quick Bar", 4, 0, on},
    {"KeyView", "Preview in Velloro", "Preview in Velloro", 4, 0, on},
    {"KeyView", "Preview .html Files In Explorer", "Preview .html Files In Explorer", 2, 0, on},
    {"KeyView", "Open in Default App", "Open in Default App", 2, 0, on},
    {"KeyView", "Left Margin", "Left Margin", 4, 0, on},
    {"KeyView", "Margin Numbers", "Margin Numbers", 2, 0, on},
    {"KeyView", "White Spaces", "White Spaces", 2, 0, on},
    {"KeyView", "Save Layout", "Save Layout", 4, 0, on},
    {"KeyView", "Load Layout", "Load Layout", 2, 0, on},

    {"KeyToolbarAlign", "Top", "Top", 2, 0, on},
    {"KeyToolbarAlign", "Bottom", "Bottom", 2, 0, on},

    {"keyInsert", "Text", "Text", 2, 'T', on},
    {"keyInsert", "Image", "Image", 2, 'I', on},
    {"keyInsert", "Email", "Email", 2, 'E', on},
    {"keyInsert", "Marquee", "Marquee", 2, 'M', on},
    {"keyInsert", "Break", "Break", 4, 0, on},
    {"keyInsert", "Script", "Script", 2, 0, on},
    {"KeyInsert", "Hyperlink", "Hyperlink", 4, 0, on},
    {"KeyInsert", "Horizontal Line", "Horizontal Line", 2, 0, on},
    {"KeyInsert", "Inline Frame", "Inline Frame", 2, 0, on},
    {"KeyInsert", "KeyTable", "Table", 4, 0, on},
    {"KeyInsert", "KeyExtras", "Extras", 2, 0, on},
    {"KeyInsert", "KeyForm", "Form", 2, 0, on},
    {"KeyInsert", "KeyMedia", "MultiMedia", 2, 0, on},

    {"KeyTable", "Table Wizard", "Table Wizard", 2, 0, on},
    {"KeyTable", "CSV Table Wizard", "CSV Table Wizard", 2, 0, on},
    {"KeyTable", "Table", "Standard Table", 2, 0, on},
    {"KeyTable", "Insert Column", "Insert Column", 4, 0, on},
    {"KeyTable", "Insert Row", "Insert Row", 2, 0, on},
    {"KeyTable", "Insert Heading Cell", "Insert Heading Cell", 2, 0, on},

    {"KeyExtras", "Colour Finder", "Colour Finder", 2, 0, on},
    {"KeyExtras", "Add Time", "Add Time", 4, 0, on},
    {"KeyExtras", "Add Date", "Add Date", 2, 0, on},
    {"KeyExtras", "Last Updated", "Last Updated", 2, 0, on},
    {"KeyExtras", "Hyperlink Drop Down Menu", "Hyperlink Drop Down Menu", 4, 0, on},
    {"KeyExtras", "External Window Script", "External Window Script", 2, 0, on},
    {"KeyExtras", "External Style Sheet", "External Style Sheet", 2, 0, on},

    {"KeyForm", "Form", "Form", 2, 0, on},
    {"KeyForm", "ListForm", "List Form", 2, 0, off},
    {"KeyForm", "ListField", "List Field", 2, 0, off},
    {"KeyForm", "1 Line Text Box", "Text Box", 4, 0, on},
    {"KeyForm", "Scrolling TextBox", "Text Area", 2, 0, on},
    {"KeyForm", "Password Box", "Password Box", 2, 0, on},
    {"KeyForm", "File Upload", "File Upload", 2, 0, on},
    {"KeyForm", "Radio Button", "Radio Button", 4, 0, on},
    {"KeyForm", "Check Button", "Check Button", 2, 0, on},
    {"KeyForm", "Push Button", "Push Button", 2, 0, on},
    {"KeyForm", "Drop Menu", "Drop Menu", 2, 0, on},
    {"KeyForm", "Label", "Label", 4, 0, off},
    {"KeyForm", "Last Updated", "Last Updated", 2, 0, on},

    {"KeyMedia", "Insert Sound", "Insert Sound", 2, 0, on},
    {"KeyMedia", "Insert Movie", "Insert Movie", 2, 0, on},
    {"KeyMedia", "Insert Object", "Insert Object", 4, 0, on},
    {"KeyMedia", "Insert Java Applet", "Insert Java Applet", 2, 0, on},
    {"KeyMedia", "Insert RealAudio", "Insert RealAudio", 2, 0, on},

    {"keyText", "Insert Text", "Insert Text", 2, 0, on},
    {"keyText", "Insert Tabbed Text", "Insert Tabbed Text", 2, 0, on},
    {"keyText", "KeyFormat", "Format Text", 4, 0, on},
    {"keyText", "Insert Comment", "Insert Comment", 4, 0, on},
    {"keyText", "Insert Bookmark", "Insert Bookmark", 2, 0, on},
    {"keyText", "Insert Strike", "Insert Strike", 2, 0, on},
    {"keyText", "Insert Blink", "Insert Blink", 2, 0, on},
    {"keyText", "To Upper Case", "To Upper Case", 4, 0, on},
    {"keyText", "To Lower Case", "To Lower Case", 2, 0, on},

    {"KeyFormat", "Format Main", "Format Main", 2, 0, on},
    {"KeyFormat", "KeyPhysical", "Physical Styles", 4, 0, on},
    {"KeyFormat", "KeyLogical", "Logical Styles", 2, 0, on},
    {"KeyFormat", "KeyParagraph", "Paragraph Styles", 2, 0, on},
    {"KeyFormat", "KeyOther", "Other Styles", 2, 0, on},

    {"KeyPhysical", "Bold", "Bold", 2, 0, on},
    {"KeyPhysical", "Italic", "Italic", 2, 0, on},
    {"KeyPhysical", "Underline", "Underline", 2, 0, on},
    {"KeyPhysical", "Strikethrough", "Strikethrough", 2, 0, on},
    {"KeyPhysical", "Subscript", "Subscript", 4, 0, on},
    {"KeyPhysical", "Superscript", "Superscript", 2, 0, on},
    {"KeyPhysical", "Typewriter", "Typewriter", 4, 0, on},

    {"KeyLogical", "Citation", "Citation", 2, 0, on},
    {"KeyLogical", "Code", "Code", 2, 0, on},
    {"KeyLogical", "Emphasis", "Emphasis", 2, 0, on},
    {"KeyLogical", "StrongEmphasis", "Strong Emphasis", 2, 0, on},
    {"KeyLogical", "Footnote", "Footnote", 2, 0, on},
    {"KeyLogical", "Keyboard", "Keyboard", 2, 0, on},
    {"KeyLogical", "Sample", "Sample", 2, 0, on},
    {"KeyLogical", "Variable", "Variable", 2, 0, on},

    {"KeyParagraph", "Address", "Address", 2, 0, on},
    {"KeyParagraph", "Comment", "Comment", 2, 0, on},
    {"KeyParagraph", "Division", "Division", 2, 0, on},
    {"KeyParagraph", "Paragraph", "Paragraph", 2, 0, on},
    {"KeyParagraph", "Preformated Text", "Preformated Text", 2, 0, on},
    {"KeyParagraph", "Span", "Span", 2, 0, on},

    {"keyMacro", "Record Macro", "Record Macro", 2, 0, on},
    {"keyMacro", "PlayM1", "Play Macro 1", 4, 0, on},
    {"keyMacro", "PlayM2", "Play Macro 2", 2, 0, on},
    {"keyMacro", "PlayM3", "Play Macro 3", 2, 0, on},
    {"keyMacro", "PlayM4", "Play Macro 4", 2, 0, on},
    {"keyMacro", "PlayM5", "Play Macro 5", 2, 0, on},
    {"keyMacro", "PlayM6", "Play Macro 6", 2, 0, on},
    {"keyMacro", "PlayM7", "Play Macro 7", 2, 0, on},
    {"keyMacro", "PlayM8", "Play Macro 8", 2, 0, on},
    {"keyMacro", "PlayM9", "Play Macro 9", 2, 0, on},
    {"keyMacro", "PlayM10", "Play Macro 10", 2, 0, on},

    {"keyTools", "Program Options", "Program Options", 2, 0, on},
    {"keyTools", "Page Properties", "Page Properties", 2, 0, on},
    {"keyTools", "Folder Sort1", "Folder Sort", 4, 0, on},
    {"keyTools", "CheckTags", "Check HTML Tags", 2, 0, on},
    {"keyTools", "Create External Stlye Sheet", "Create External Stlye Sheet", 4, 0, on},
    {"keyTools", "Create ScrollBar Color Code", "Create ScrollBar Color Code", 2, 0, on},
    {"keyTools", "Image Map Generator", "Image Map Generator", 4, 0, on},
    {"keyTools", "Index Picture Generator", "Index Picture Generator", 2, 0, on},
    {"keyTools", "Style Link Wizard", "Style Link Wizard", 2, 0, on},
    {"keyTools", "Colour Finder1", "Colour Finder", 4, 0, on},
    {"keyTools", "Spell Checker", "Spell Checker", 2, 0, on},
    {"keyTools", "Quick Bar1", "Quick Bar", 2, 0, on},
    {"keyTools", "Find Files", "Find Files.....", 4, 0, off},
    {"keyTools", "RegEdit", "RegEdit.....", 2, 0, on},
    {"keyTools", "Explorer", "Explorer.....", 2, 0, on},
    {"keyTools", "Run", "Run.....", 2, 0, on},

    {"keyWindow", "Cascade", "Cascade", 2, 0, on},
    {"keyWindow", "Tile Horizontal", "Tile Horizontal", 2, 0, on},
    {"keyWindow", "Tile Vertical", "Tile Vertical", 2, 0, on},
    {"keyWindow", "Arrange Icons", "Arrange Icons", 2, 0, on},
    {"keyWindow", "Next Window", "Next Window", 4, 0, on},
    {"keyWindow", "Previous Window", "Previous Window", 2, 0, on},
    {"keyWindow", "Split Window", "Split Window", 4, 0, on},

    {"keyHelp", "Contents", "Contents", 0, 0, on},
    {"keyHelp", "Search for Help on...", "Search for Help on...", 0, 0, off},
    {"keyHelp", "Online", "Online", 0, 0, on},
    {"keyHelp", "Send Feedback", "Send Feedback", 0, 0, on},
    {"keyHelp", "About", "About", 0, 0, on},
    {"keyHelp", "Check Version", "Update Velloro ...", 0, 0, on},
    {"keyHelp", "Velloro Online", "Velloro Online", 0, 0, on},
};

QList<MenuEntry> build()
{
    QList<MenuEntry> list;
    list.reserve(std::size(rows));
    for (const Row& r : rows) {
        MenuEntry e;
        e.parent = QString::fromUtf8(r.parent);
        e.key = QString::fromUtf8(r.key);
        e.caption = QString::fromUtf8(r.caption);
        e.picture = !e.parent.isEmpty();
        e.style = r.style;
        e.shortcut = r.shortcut;
        e.enabled = r.enabled;
        list.append(e);
    }
    return list;
}
}

const QList<MenuEntry>& menuTable()
{
    static const QList<MenuEntry> table = build();
    return table;
}

QList<MenuEntry> menuChildren(const QString& parent)
{
    QList<MenuEntry> children;
    for (const MenuEntry& e : menuTable())
        if (e.parent.compare(parent, Qt::CaseInsensitive) == 0)
            children.append(e);
    return children;
}

const MenuEntry* menuEntry(const QString& key)
{
    for (const MenuEntry& e : menuTable())
        if (e.key == key)
            return &e;
    return nullptr;
}
