// The editor's properties (command 224): a real dialog whose values reach the editor.
#include "common/TestSupport.h"

#include "platform/CodeMax.h"
#include "platform/EditorOptionsDialog.h"

#include <QCheckBox>
#include <QFontComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <Qsci/qscilexer.h>

namespace {
class EditorOptionsTest : public WindowTest {
protected:
    CodeMax editor;
};

TEST_F(EditorOptionsTest, CommandOpensTheDialogWithTheEditorsValues)
{
    editor.setLanguage(QStringLiteral("HTML"));
    editor.setTabWidth(6);
    editor.setLineNumbering(true);
    editor.ExecuteCmd(CodeMax::EditorProperties);
    auto* d = editor.findChild<EditorOptionsDialog*>();
    ASSERT_NE(d, nullptr);
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(d->TabWidth->value(), 6);
    EXPECT_TRUE(d->LineNumbers->isChecked());
    // A second command shows the same dialog.
    editor.ExecuteCmd(CodeMax::EditorProperties);
    EXPECT_EQ(editor.findChildren<EditorOptionsDialog*>().size(), 1);
}

TEST_F(EditorOptionsTest, OkAppliesFontTabsColoursAndMargins)
{
    editor.setLanguage(QStringLiteral("HTML"));
    EditorOptionsDialog* d = EditorOptionsDialog::open(&editor);
    d->FontSize->setValue(17);
    d->TabWidth->setValue(3);
    d->UseTabs->setChecked(false);
    d->LineNumbers->setChecked(false);
    d->Whitespace->setChecked(true);
    d->WordWrap->setChecked(true);
    prompts.answerColour(0x00FFFF);  // yellow: red and green
    d->PaperColour->click();
    d->OkButton->click();
    EXPECT_FALSE(d->isVisible());
    EXPECT_EQ(editor.tabWidth(), 3);
    EXPECT_FALSE(editor.indentationsUseTabs());
    EXPECT_FALSE(editor.LineNumbering());
    EXPECT_TRUE(editor.DisplayWhitespace());
    EXPECT_EQ(editor.wrapMode(), QsciScintilla::WrapWord);
    ASSERT_NE(editor.lexer(), nullptr);
    EXPECT_EQ(editor.lexer()->font(1).pointSize(), 17);
    EXPECT_EQ(editor.lexer()->paper(1), QColor(255, 255, 0));
    EXPECT_EQ(EditorOptionsDialog::read(&editor).paper, QColor(255, 255, 0));
}

TEST_F(EditorOptionsTest, TheChosenFontStaysWhenAnotherLanguageIsChosen)
{
    editor.setLanguage(QStringLiteral("HTML"));
    EditorOptionsDialog* d = EditorOptionsDialog::open(&editor);
    d->FontSize->setValue(19);
    d->OkButton->click();
    for (const char* language : {"XML", "", "SQL"}) {
        editor.setLanguage(QString::fromLatin1(language));
        EXPECT_EQ(editor.SendScintilla(QsciScintillaBase::SCI_STYLEGETSIZE, QsciScintillaBase::STYLE_DEFAULT), 19L) << language;
        if (editor.lexer()) {
            EXPECT_EQ(editor.lexer()->font(1).pointSize(), 19) << language;
            EXPECT_EQ(EditorOptionsDialog::read(&editor).fontSize, 19) << language;
        }
    }
}

TEST_F(EditorOptionsTest, CancelLeavesTheEditorAndACancelledColourKeepsTheOld)
{
    editor.setTabWidth(4);
    EditorOptionsDialog* d = EditorOptionsDialog::open(&editor);
    const QString before = d->TextColour->text();
    prompts.answerColour(std::nullopt);
    d->TextColour->click();
    EXPECT_EQ(d->TextColour->text(), before);
    d->TabWidth->setValue(9);
    d->CancelButton->click();
    EXPECT_EQ(editor.tabWidth(), 4);
}
}
