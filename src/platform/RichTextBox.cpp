#include "platform/RichTextBox.h"

#include "platform/PlatformColour.h"
#include "platform/Rtf.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Twips.h"

#include <QFileInfo>
#include <QImage>
#include <QPagedPaintDevice>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTextImageFormat>
#include <QUrl>

RichTextBox::RichTextBox(Kind kind, QWidget* parentWidget, QObject* owner) : QObject(owner)
{
    setObjectName(QStringLiteral("RichTextBox1"));
    if (kind == Kind::Visible) {
        edit = new QTextEdit(parentWidget);
        edit->setObjectName(QStringLiteral("RichTextBox1"));
        edit->setAcceptRichText(true);
        doc = edit->document();
        connect(edit, &QTextEdit::textChanged, this, &RichTextBox::Change);
    } else {
        doc = new QTextDocument(this);
        own = QTextCursor(doc);
        connect(doc, &QTextDocument::contentsChanged, this, &RichTextBox::Change);
    }
}

QTextCursor RichTextBox::cursor() const { return edit ? edit->textCursor() : own; }

void RichTextBox::setCursor(const QTextCursor& c)
{
    if (edit)
        edit->setTextCursor(c);
    else
        own = c;
}

QString RichTextBox::text() const
{
    // The control's text has CR LF between paragraphs and at soft line breaks; every other
    // character stands as it is (a no-break space stays one: a page copied in and back out
    // must come back unchanged).
    const QString raw = doc->toRawText();
    QString s;
    s.reserve(raw.size() + raw.size() / 16);
    for (const QChar c : raw) {
        switch (c.unicode()) {
        case QChar::ParagraphSeparator:
        case QChar::LineSeparator:
        case 0xFDD0:  // the start and end marks of a frame
        case 0xFDD1:
            s += QLatin1String("\r\n");
            break;
        default:
            s += c;
        }
    }
    return s;
}

void RichTextBox::setText(const QString& text)
{
    QString s = text;
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    doc->setPlainText(s);
    setCursor(QTextCursor(doc));
}

int RichTextBox::SelStart() const { return cursor().selectionStart(); }

void RichTextBox::setSelStart(int pos)
{
    QTextCursor c = cursor();
    c.setPosition(qBound(0, pos, doc->characterCount() - 1));
    setCursor(c);
}

int RichTextBox::SelLength() const
{
    const QTextCursor c = cursor();
    return c.selectionEnd() - c.selectionStart();
}

void RichTextBox::setSelLength(int length)
{
    QTextCursor c = cursor();
    const int start = c.selectionStart();
    c.setPosition(start);
    c.setPosition(qBound(0, start + length, doc->characterCount() - 1), QTextCursor::KeepAnchor);
    setCursor(c);
}

QString RichTextBox::SelText() const
{
    QString s = cursor().selectedText();
    s.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"));
    return s;
}

void RichTextBox::setSelText(const QString& text)
{
    QTextCursor c = cursor();
    QString s = text;
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    c.insertText(s);
    setCursor(c);
}

void RichTextBox::addPicture(const QImage& picture, const QString& name)
{
    doc->addResource(QTextDocument::ImageResource, QUrl(name), picture);
    QTextImageFormat f;
    f.setName(name);
    f.setWidth(picture.width());
    f.setHeight(picture.height());
    QTextCursor c = cursor();
    c.insertImage(f);
    setCursor(c);
}

void RichTextBox::mergeFormat(const QTextCharFormat& f)
{
    QTextCursor c = cursor();
    c.mergeCharFormat(f);
    if (edit && !c.hasSelection())
        edit->mergeCurrentCharFormat(f);
    setCursor(c);
}

QString RichTextBox::SelFontName() const { return cursor().charFormat().font().family(); }
void RichTextBox::setSelFontName(const QString& name)
{
    QTextCharFormat f;
    f.setFontFamilies({name});
    mergeFormat(f);
}

double RichTextBox::SelFontSize() const { return cursor().charFormat().font().pointSizeF(); }
void RichTextBox::setSelFontSize(double points)
{
    if (points <= 0)
        throw RuntimeError::invalidProperty(QStringLiteral("RichTextBox.SelFontSize"));
    QTextCharFormat f;
    f.setFontPointSize(points);
    mergeFormat(f);
}

int RichTextBox::SelColor() const
{
    const QColor c = cursor().charFormat().foreground().color();
    return c.red() | (c.green() << 8) | (c.blue() << 16);
}
void RichTextBox::setSelColor(int v)
{
    QTextCharFormat f;
    f.setForeground(PlatformColour::toQColor(v));
    mergeFormat(f);
}

bool RichTextBox::SelBold() const { return cursor().charFormat().fontWeight() >= QFont::Bold; }
void RichTextBox::setSelBold(bool on)
{
    QTextCharFormat f;
    f.setFontWeight(on ? QFont::Bold : QFont::Normal);
    mergeFormat(f);
}

bool RichTextBox::SelItalic() const { return cursor().charFormat().fontItalic(); }
void RichTextBox::setSelItalic(bool on)
{
    QTextCharFormat f;
    f.setFontItalic(on);
    mergeFormat(f);
}

bool RichTextBox::SelUnderline() const { return cursor().charFormat().fontUnderline(); }
void RichTextBox::setSelUnderline(bool on)
{
    QTextCharFormat f;
    f.setFontUnderline(on);
    mergeFormat(f);
}

void RichTextBox::mergeBlock(const std::function<void(QTextBlockFormat&)>& change)
{
    // Each paragraph of the selection changes only in what is changed; its other settings
    // (alignment, the other margins) stay its own.
    QTextCursor c = cursor();
    const QTextBlock last = doc->findBlock(c.selectionEnd());
    c.beginEditBlock();
    for (QTextBlock b = doc->findBlock(c.selectionStart()); b.isValid(); b = b.next()) {
        QTextBlockFormat f = b.blockFormat();
        change(f);
        QTextCursor(b).setBlockFormat(f);
        if (b == last)
            break;
    }
    c.endEditBlock();
    setCursor(c);
}

// Indents are kept in twips; the document works in pixels. The indent is where a paragraph's
// first line starts, the hanging indent how far the lines after it stand from there; the
// document keeps a margin for all lines and the first line's offset from it.
int RichTextBox::SelIndent() const
{
    const QTextBlockFormat f = cursor().blockFormat();
    return pixelsToTwips(static_cast<int>(f.leftMargin() + f.textIndent()));
}
void RichTextBox::setSelIndent(int twips)
{
    mergeBlock([twips](QTextBlockFormat& f) { f.setLeftMargin(qMax(0.0, twipsToPixels(twips) - f.textIndent())); });
}
int RichTextBox::SelRightIndent() const { return pixelsToTwips(static_cast<int>(cursor().blockFormat().rightMargin())); }
void RichTextBox::setSelRightIndent(int twips)
{
    mergeBlock([twips](QTextBlockFormat& f) { f.setRightMargin(twipsToPixels(twips)); });
}
int RichTextBox::SelHangingIndent() const { return pixelsToTwips(static_cast<int>(-cursor().blockFormat().textIndent())); }
void RichTextBox::setSelHangingIndent(int twips)
{
    // The first line stays where it is; the lines after it move.
    mergeBlock([twips](QTextBlockFormat& f) {
        const double first = f.leftMargin() + f.textIndent();
        f.setTextIndent(-twipsToPixels(twips));
        f.setLeftMargin(qMax(0.0, first - f.textIndent()));
    });
}

int RichTextBox::find(const QString& what)
{
    const QTextCursor found = doc->find(what, 0);
    if (found.isNull())
        return -1;
    setCursor(found);
    return found.selectionStart();
}

int RichTextBox::GetLineFromChar(int pos) const
{
    const QTextBlock b = doc->findBlock(qBound(0, pos, doc->characterCount() - 1));
    return b.isValid() ? b.blockNumber() : 0;
}

void RichTextBox::LoadFile(const QString& path)
{
    bool ok = false;
    const QByteArray bytes = TextFiles::readBytes(path, &ok);
    if (!ok)
        throw RuntimeError::fileNotFound(QStringLiteral("RichTextBox.LoadFile"));
    // A file that is not rich text is shown as the plain text it is.
    if (Rtf::read(bytes, doc)) {
        setCursor(QTextCursor(doc));
        return;
    }
    setText(TextFiles::decode(bytes));
}

void RichTextBox::SaveFile(const QString& path)
{
    if (!TextFiles::writeBytes(path, Rtf::write(*doc)))
        throw RuntimeError::pathFileAccess(QStringLiteral("RichTextBox.SaveFile"));
}

void RichTextBox::SelPrint(QPagedPaintDevice* device)
{
    if (SelLength() == 0) {
        doc->print(device);
        return;
    }
    QTextDocument part;
    QTextCursor(&part).insertFragment(cursor().selection());
    part.print(device);
}
