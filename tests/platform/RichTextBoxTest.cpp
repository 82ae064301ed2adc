// The rich text control, visible (notepad) and hidden (the work copy of the code windows):
// text with CR LF, the selection, find, line numbers, character and paragraph formats, files.
#include "common/TestSupport.h"

#include "platform/RichTextBox.h"
#include "platform/RuntimeError.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QWidget>

#include <memory>

namespace {
using Kind = RichTextBox::Kind;

class RichTextBoxTest : public ::testing::TestWithParam<Kind> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        box = std::make_unique<RichTextBox>(GetParam(), &window, &window);
    }
    void TearDown() override { box.reset(); }

    // Selects [from, from+length) and checks that the selection took.
    void select(int from, int length)
    {
        box->setSelStart(from);
        box->setSelLength(length);
        ASSERT_EQ(box->SelStart(), from);
        ASSERT_EQ(box->SelLength(), length);
    }
    // The character format at a character of the document, read without the control.
    QTextCharFormat formatAt(int pos) const
    {
        QTextCursor c(box->document());
        c.setPosition(pos + 1);  // the format of the character before the position
        return c.charFormat();
    }

    ScriptedPrompts prompts;
    QTemporaryDir dir;
    QWidget window;
    std::unique_ptr<RichTextBox> box;
};

std::string kindName(const ::testing::TestParamInfo<Kind>& info)
{
    return info.param == Kind::Visible ? "Visible" : "Hidden";
}
}

INSTANTIATE_TEST_SUITE_P(BothKinds, RichTextBoxTest, ::testing::Values(Kind::Visible, Kind::Hidden), kindName);

TEST_P(RichTextBoxTest, NameAndWidgetByKind)
{
    EXPECT_EQ(box->objectName(), QStringLiteral("RichTextBox1"));
    ASSERT_NE(box->document(), nullptr);
    if (GetParam() == Kind::Visible) {
        ASSERT_NE(box->widget(), nullptr);
        EXPECT_EQ(box->widget()->objectName(), QStringLiteral("RichTextBox1"));
        EXPECT_EQ(box->widget()->parentWidget(), &window);
        EXPECT_EQ(window.findChild<QTextEdit*>(QStringLiteral("RichTextBox1")), box->widget());
    } else {
        EXPECT_EQ(box->widget(), nullptr) << "the work copy has no widget";
        EXPECT_EQ(window.findChild<QTextEdit*>(), nullptr);
    }
    EXPECT_EQ(box->text(), QString());
}

TEST_P(RichTextBoxTest, TextKeepsCrLfBetweenLines)
{
    // A no-break space and a lone form feed stay what they are.
    for (const QString& text : {QStringLiteral("one\r\ntwo\r\n\r\nfour \u00E9\u20AC"), QStringLiteral("a\u00A0b\fc"),
                                QStringLiteral("ends with a break\r\n"), QString()}) {
        box->setText(text);
        EXPECT_EQ(box->text(), text) << visible(text);
    }
}

TEST_P(RichTextBoxTest, SelectionOnOneLine)
{
    box->setText(QStringLiteral("Hello World"));
    select(6, 5);
    EXPECT_EQ(box->SelText(), QStringLiteral("World"));

    box->setSelText(QStringLiteral("There"));
    EXPECT_EQ(box->text(), QStringLiteral("Hello There"));
    EXPECT_EQ(box->SelLength(), 0) << "the inserted text is not left selected";
    EXPECT_EQ(box->SelStart(), 11);

    // Without a selection the text goes in at the caret.
    box->setSelStart(5);
    EXPECT_EQ(box->SelLength(), 0);
    box->setSelText(QStringLiteral(","));
    EXPECT_EQ(box->text(), QStringLiteral("Hello, There"));
    EXPECT_EQ(box->SelStart(), 6);
}

TEST_P(RichTextBoxTest, SelectionAcrossLinesUsesCrLf)
{
    box->setText(QStringLiteral("one\r\ntwo"));
    box->setSelStart(0);
    box->setSelLength(1000);
    EXPECT_EQ(box->SelText(), QStringLiteral("one\r\ntwo")) << "a selection past the end stops at the end";

    box->setSelText(QStringLiteral("A\r\nB\r\nC"));
    EXPECT_EQ(box->text(), QStringLiteral("A\r\nB\r\nC"));

    // Inserted line breaks become real lines, not characters inside one line.
    box->setText(QStringLiteral("startend"));
    box->setSelStart(5);
    box->setSelText(QStringLiteral("\r\nmiddle\r\n"));
    EXPECT_EQ(box->text(), QStringLiteral("start\r\nmiddle\r\nend"));
    EXPECT_EQ(box->document()->blockCount(), 3);
}

TEST_P(RichTextBoxTest, FindIsCaseInsensitiveSelectsTheMatchAndGivesItsPosition)
{
    box->setText(QStringLiteral("Hello World, hello world"));
    EXPECT_EQ(box->find(QStringLiteral("WORLD")), 6);
    EXPECT_EQ(box->SelStart(), 6);
    EXPECT_EQ(box->SelLength(), 5);
    EXPECT_EQ(box->SelText(), QStringLiteral("World"));

    // Each search starts from the beginning, wherever the caret is.
    box->setSelStart(20);
    EXPECT_EQ(box->find(QStringLiteral("hello")), 0);
    EXPECT_EQ(box->SelText(), QStringLiteral("Hello"));

    // The match keeps the text's own case, across punctuation and blanks.
    EXPECT_EQ(box->find(QStringLiteral("D, H")), 10);
    EXPECT_EQ(box->SelText(), QStringLiteral("d, h"));
}

TEST_P(RichTextBoxTest, FindOfMissingTextGivesMinusOneAndKeepsTheSelection)
{
    box->setText(QStringLiteral("Hello World"));
    select(0, 5);
    EXPECT_EQ(box->find(QStringLiteral("planet")), -1);
    EXPECT_EQ(box->SelStart(), 0);
    EXPECT_EQ(box->SelLength(), 5);
    EXPECT_EQ(box->find(QStringLiteral("Worlds")), -1);
    box->setText(QString());
    EXPECT_EQ(box->find(QStringLiteral("x")), -1);
}

TEST_P(RichTextBoxTest, LineFromChar)
{
    box->setText(QStringLiteral("one\r\ntwo\r\nthree"));
    EXPECT_EQ(box->GetLineFromChar(0), 0);
    EXPECT_EQ(box->GetLineFromChar(2), 0);
    EXPECT_EQ(box->GetLineFromChar(3), 0) << "the end of the first line";
    // The notepad's line count: GetLineFromChar of the length of the text, plus one.
    EXPECT_EQ(box->GetLineFromChar(box->text().size()) + 1, 3);
    EXPECT_EQ(box->GetLineFromChar(100000), 2) << "past the end is the last line";

    box->setText(QString());
    EXPECT_EQ(box->GetLineFromChar(0) + 1, 1);
    box->setText(QStringLiteral("a\r\n"));
    EXPECT_EQ(box->GetLineFromChar(box->text().size()) + 1, 2);
}

TEST_P(RichTextBoxTest, CharacterFormatsRoundTripOnASelection)
{
    box->setText(QStringLiteral("plain styled plain"));
    select(6, 6);
    box->setSelBold(true);
    box->setSelItalic(true);
    box->setSelUnderline(true);
    box->setSelFontSize(18);
    box->setSelFontName(QStringLiteral("Courier New"));
    box->setSelColor(0x123456);  // red 0x56, green 0x34, blue 0x12

    EXPECT_EQ(box->SelStart(), 6) << "formatting keeps the selection";
    EXPECT_EQ(box->SelLength(), 6);
    EXPECT_TRUE(box->SelBold());
    EXPECT_TRUE(box->SelItalic());
    EXPECT_TRUE(box->SelUnderline());
    EXPECT_DOUBLE_EQ(box->SelFontSize(), 18.0);
    EXPECT_EQ(box->SelFontName(), QStringLiteral("Courier New"));
    EXPECT_EQ(box->SelColor(), 0x123456);
    EXPECT_EQ(box->text(), QStringLiteral("plain styled plain")) << "formats do not touch the text";

    // The colour value has red in its low byte.
    const QTextCharFormat styled = formatAt(8);
    EXPECT_EQ(styled.foreground().color(), QColor(0x56, 0x34, 0x12));
    EXPECT_TRUE(styled.fontUnderline());

    // The text around the selection is untouched.
    for (int pos : {0, 4, 13, 17}) {
        const QTextCharFormat f = formatAt(pos);
        EXPECT_LT(f.fontWeight(), QFont::Bold) << pos;
        EXPECT_FALSE(f.fontItalic()) << pos;
        EXPECT_FALSE(f.fontUnderline()) << pos;
    }
    select(0, 5);
    EXPECT_FALSE(box->SelBold());
    EXPECT_FALSE(box->SelItalic());
    EXPECT_FALSE(box->SelUnderline());

    // And back off again.
    select(6, 6);
    box->setSelBold(false);
    box->setSelItalic(false);
    box->setSelUnderline(false);
    box->setSelColor(0x0000FF);
    EXPECT_FALSE(box->SelBold());
    EXPECT_FALSE(box->SelItalic());
    EXPECT_FALSE(box->SelUnderline());
    EXPECT_EQ(box->SelColor(), 0x0000FF);
    EXPECT_EQ(formatAt(8).foreground().color(), QColor(255, 0, 0));
}

TEST_P(RichTextBoxTest, FontSizeMustBePositive)
{
    box->setText(QStringLiteral("text"));
    select(0, 4);
    box->setSelFontSize(12);
    try {
        box->setSelFontSize(0);
        ADD_FAILURE() << "a size of 0 was taken";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 380);
    }
    EXPECT_DOUBLE_EQ(box->SelFontSize(), 12.0);
}

TEST_P(RichTextBoxTest, IndentsAreTwipsAndApplyToTheSelectedParagraphs)
{
    box->setText(QStringLiteral("first\r\nsecond\r\nthird"));
    box->setSelStart(8);  // in "second"
    box->setSelIndent(720);
    EXPECT_EQ(box->SelIndent(), 720);
    box->setSelRightIndent(450);
    EXPECT_EQ(box->SelRightIndent(), 450);
    box->setSelHangingIndent(300);
    EXPECT_EQ(box->SelHangingIndent(), 300);
    EXPECT_EQ(box->SelIndent(), 720) << "a hanging indent does not move the paragraph's first line";

    // 720 twips are 48 pixels on the document, 300 are 20: the first line stands at 48, the
    // lines after it 20 further in.
    const QTextBlock second = box->document()->findBlockByNumber(1);
    EXPECT_DOUBLE_EQ(second.blockFormat().leftMargin() + second.blockFormat().textIndent(), 48.0);
    EXPECT_DOUBLE_EQ(second.blockFormat().leftMargin(), 68.0);
    EXPECT_DOUBLE_EQ(box->document()->findBlockByNumber(0).blockFormat().leftMargin(), 0.0);
    EXPECT_DOUBLE_EQ(box->document()->findBlockByNumber(2).blockFormat().leftMargin(), 0.0);

    box->setSelStart(0);
    EXPECT_EQ(box->SelIndent(), 0);
    box->setSelStart(8);
    box->setSelIndent(0);
    EXPECT_EQ(box->SelIndent(), 0);
    EXPECT_EQ(box->text(), QStringLiteral("first\r\nsecond\r\nthird"));
}

TEST_P(RichTextBoxTest, IndentingParagraphsKeepsTheirOwnAlignmentAndFirstLine)
{
    box->setText(QStringLiteral("heading\r\nbody"));
    QTextCursor c(box->document());
    QTextBlockFormat centred;
    centred.setAlignment(Qt::AlignHCenter);
    c.setBlockFormat(centred);
    QTextCursor second(box->document()->findBlockByNumber(1));
    QTextBlockFormat firstLineIn;
    firstLineIn.setTextIndent(48);  // 720 twips
    second.setBlockFormat(firstLineIn);

    box->setSelStart(0);
    box->setSelLength(box->text().size());
    // The buttons of the bar: the indent of the caret's paragraph, 360 twips more, then less.
    box->setSelIndent(box->SelIndent() + 360);
    box->setSelIndent(box->SelIndent() - 360);
    const QTextBlockFormat a = box->document()->findBlockByNumber(0).blockFormat();
    const QTextBlockFormat b = box->document()->findBlockByNumber(1).blockFormat();
    EXPECT_EQ(a.alignment(), Qt::AlignHCenter);
    EXPECT_EQ(b.alignment(), Qt::AlignLeft) << "the caret paragraph's alignment is not copied";
    EXPECT_DOUBLE_EQ(b.textIndent(), 48.0);
    EXPECT_DOUBLE_EQ(b.leftMargin(), 0.0) << "in and out again is where it was";
    box->setSelStart(6);  // in "body"
    EXPECT_EQ(box->SelIndent(), 720);
}

TEST_P(RichTextBoxTest, FileErrors)
{
    box->setText(QStringLiteral("kept"));
    try {
        box->LoadFile(dir.filePath(QStringLiteral("missing.txt")));
        ADD_FAILURE() << "a missing file loaded";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 53);
    }
    EXPECT_EQ(box->text(), QStringLiteral("kept"));

    const QString nowhere = dir.filePath(QStringLiteral("nofolder/note.txt"));
    try {
        box->SaveFile(nowhere);
        ADD_FAILURE() << "saved into a missing folder";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number, 75);
    }
    EXPECT_FALSE(QFile::exists(nowhere));
}

TEST_P(RichTextBoxTest, ChangeFiresWhenTheTextChanges)
{
    QSignalSpy changed(box.get(), &RichTextBox::Change);
    box->setText(QStringLiteral("new text"));
    EXPECT_GE(changed.count(), 1);
    changed.clear();
    box->setSelStart(3);
    box->setSelText(QStringLiteral("er"));
    EXPECT_GE(changed.count(), 1);
    EXPECT_EQ(box->text(), QStringLiteral("newer text"));
}
