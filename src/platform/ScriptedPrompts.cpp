#include "platform/ScriptedPrompts.h"

#include <QPrinter>
#include <QtGlobal>

namespace {
std::function<void(const QString&)>& failureHandler()
{
    static std::function<void(const QString&)> h = [](const QString& msg) {
        qFatal("%s", qPrintable(msg));
    };
    return h;
}
PromptHandler* current = nullptr;
}

ScriptedPrompts::ScriptedPrompts()
{
    previous = current;
    current = this;
    setPromptHandler(this);
}

ScriptedPrompts::~ScriptedPrompts()
{
    current = previous;
    setPromptHandler(previous);
}

void ScriptedPrompts::setFailureHandler(std::function<void(const QString&)> handler)
{
    failureHandler() = std::move(handler);
}

const ScriptedPrompts::Prompt& ScriptedPrompts::last() const
{
    static const Prompt none;
    return seen.isEmpty() ? none : seen.last();
}

ScriptedPrompts& ScriptedPrompts::answerMsgBox(int answer) { queue.append({QStringLiteral("MsgBox"), answer}); return *this; }
ScriptedPrompts& ScriptedPrompts::answerInput(const QString& text) { queue.append({QStringLiteral("InputBox"), text}); return *this; }
ScriptedPrompts& ScriptedPrompts::answerOpenFile(const QString& path) { queue.append({QStringLiteral("OpenFile"), path}); return *this; }
ScriptedPrompts& ScriptedPrompts::answerSaveFile(const QString& path) { queue.append({QStringLiteral("SaveFile"), path}); return *this; }
ScriptedPrompts& ScriptedPrompts::answerFolder(const QString& path) { queue.append({QStringLiteral("Folder"), path}); return *this; }
ScriptedPrompts& ScriptedPrompts::answerColour(std::optional<int> colour)
{
    queue.append({QStringLiteral("Colour"), colour ? QVariant(*colour) : QVariant()});
    return *this;
}
ScriptedPrompts& ScriptedPrompts::answerFont(std::optional<QFont> font)
{
    queue.append({QStringLiteral("Font"), font ? QVariant(*font) : QVariant()});
    return *this;
}

ScriptedPrompts& ScriptedPrompts::answerPrint(const QString& pdfPath)
{
    queue.append({QStringLiteral("Print"), pdfPath});
    return *this;
}

ScriptedPrompts& ScriptedPrompts::answerPageSetup(bool accepted, QPageLayout::Orientation turn)
{
    queue.append({QStringLiteral("PageSetup"), accepted ? QVariant(static_cast<int>(turn)) : QVariant()});
    return *this;
}

QVariant ScriptedPrompts::take(const Prompt& p, const QVariant& fallback)
{
    seen.append(p);
    if (queue.isEmpty() || queue.first().kind != p.kind) {
        failureHandler()(QStringLiteral("unexpected %1: \"%2\" (title \"%3\", style %4)%5")
                             .arg(p.kind, p.text, p.title)
                             .arg(p.style)
                             .arg(queue.isEmpty() ? QString() : QStringLiteral("; next answer is for ") + queue.first().kind));
        return fallback;
    }
    return queue.takeFirst().value;
}

int ScriptedPrompts::msgBox(const QString& text, int style, const QString& title)
{
    return take({QStringLiteral("MsgBox"), text, style, title}, Answer::Cancel).toInt();
}

QString ScriptedPrompts::inputBox(const QString& prompt, const QString& title, const QString&)
{
    return take({QStringLiteral("InputBox"), prompt, 0, title}, QString()).toString();
}

QString ScriptedPrompts::openFile(const QString& title, const QString& filter, const QString&)
{
    return take({QStringLiteral("OpenFile"), filter, 0, title}, QString()).toString();
}

QString ScriptedPrompts::saveFile(const QString& title, const QString& filter, const QString&)
{
    return take({QStringLiteral("SaveFile"), filter, 0, title}, QString()).toString();
}

QString ScriptedPrompts::folder(const QString& title, const QString& start)
{
    return take({QStringLiteral("Folder"), start, 0, title}, QString()).toString();
}

std::optional<int> ScriptedPrompts::colour(int)
{
    const QVariant v = take({QStringLiteral("Colour"), QString(), 0, QString()}, QVariant());
    if (!v.isValid())
        return std::nullopt;
    return v.toInt();
}

std::optional<QFont> ScriptedPrompts::font(const QFont&)
{
    const QVariant v = take({QStringLiteral("Font"), QString(), 0, QString()}, QVariant());
    if (!v.isValid())
        return std::nullopt;
    return v.value<QFont>();
}

bool ScriptedPrompts::print(QPrinter& printer, bool offerSelection)
{
    const QString pdf = take({QStringLiteral("Print"), QString(), offerSelection ? 1 : 0, QString()}, QString()).toString();
    if (pdf.isEmpty())
        return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdf);
    return true;
}

bool ScriptedPrompts::pageSetup(QPrinter& printer, const QString& title)
{
    const QVariant turn = take({QStringLiteral("PageSetup"), QString(), 0, title}, QVariant());
    if (!turn.isValid())
        return false;
    printer.setPageOrientation(static_cast<QPageLayout::Orientation>(turn.toInt()));
    return true;
}
