#pragma once
#include <QDialog>

class CodeMax;
class QCheckBox;
class QFontComboBox;
class QPushButton;
class QSpinBox;

// The code editor's properties (editor command 224): font, tab width, colours and margins.
// Each editor has one, made on first use and owned by the editor; "Apply" and "OK" put the
// values on that editor, "Cancel" leaves it as it was.
class EditorOptionsDialog : public QDialog {
    Q_OBJECT
public:
    static EditorOptionsDialog* of(CodeMax* editor);
    // Shows the editor's dialog with the editor's present values.
    static EditorOptionsDialog* open(CodeMax* editor);

    struct Values {
        QString fontFamily;
        int fontSize = 10;
        int tabWidth = 4;
        bool useTabs = true;
        QColor text, paper, margin;
        bool lineNumbers = true, leftMargin = true, whitespace = false, wrap = false;
    };
    static Values read(const CodeMax* editor);
    static void apply(CodeMax* editor, const Values& v);

    // The dialog's fields as values, and the other way round.
    Values values() const;
    void setValues(const Values& v);

    QFontComboBox* Font1 = nullptr;
    QSpinBox *FontSize = nullptr, *TabWidth = nullptr;
    QCheckBox *UseTabs = nullptr, *LineNumbers = nullptr, *LeftMargin = nullptr, *Whitespace = nullptr,
              *WordWrap = nullptr;
    QPushButton *TextColour = nullptr, *PaperColour = nullptr, *MarginColour = nullptr;
    QPushButton *OkButton = nullptr, *ApplyButton = nullptr, *CancelButton = nullptr;

private:
    explicit EditorOptionsDialog(CodeMax* editor);
    void chooseColour(QPushButton* button);
    CodeMax* ed;
};
