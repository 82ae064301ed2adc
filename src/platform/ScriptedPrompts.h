#pragma once
#include "platform/Prompts.h"

#include <QList>
#include <QPageLayout>
#include <QVariant>
#include <functional>

// The prompt handler for tests and tools: installs itself while it lives, records every
// prompt and answers each from a queue. A prompt with no queued answer of its kind is a
// failure, reported through the failure hook (by default a fatal error).
class ScriptedPrompts : public PromptHandler {
public:
    struct Prompt {
        QString kind;  // "MsgBox", "InputBox", "OpenFile", "SaveFile", "Folder", "Colour", "Font", "Print", "PageSetup"
        QString text;
        int style = 0;
        QString title;
    };

    ScriptedPrompts();
    ~ScriptedPrompts() override;
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;

    // Queue answers, in the order the prompts will come.
    ScriptedPrompts& answerMsgBox(int answer);
    ScriptedPrompts& answerInput(const QString& text);          // empty = cancelled
    ScriptedPrompts& answerOpenFile(const QString& path);       // empty = cancelled
    ScriptedPrompts& answerSaveFile(const QString& path);
    ScriptedPrompts& answerFolder(const QString& path);
    ScriptedPrompts& answerColour(std::optional<int> colour);   // nullopt = cancelled
    ScriptedPrompts& answerFont(std::optional<QFont> font);
    // The print dialog prints into this PDF file; empty = cancelled. The prompt's style records
    // whether the selection was offered (1) or not (0).
    ScriptedPrompts& answerPrint(const QString& pdfPath);
    // An accepted page setup turns the page as given.
    ScriptedPrompts& answerPageSetup(bool accepted, QPageLayout::Orientation turn = QPageLayout::Portrait);

    const QList<Prompt>& prompts() const { return seen; }
    const Prompt& last() const;
    int pending() const { return static_cast<int>(queue.size()); }
    void clear() { seen.clear(); queue.clear(); }

    // Where unexpected prompts are reported; tests route it to their framework.
    static void setFailureHandler(std::function<void(const QString&)> handler);

    int msgBox(const QString& text, int style, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title, const QString& deflt) override;
    QString openFile(const QString& title, const QString& filter, const QString& folder) override;
    QString saveFile(const QString& title, const QString& filter, const QString& folder) override;
    QString folder(const QString& title, const QString& start) override;
    std::optional<int> colour(int initial) override;
    std::optional<QFont> font(const QFont& initial) override;
    bool print(QPrinter& printer, bool offerSelection) override;
    bool pageSetup(QPrinter& printer, const QString& title) override;

private:
    struct Queued { QString kind; QVariant value; };
    QVariant take(const Prompt& p, const QVariant& fallback);

    QList<Prompt> seen;
    QList<Queued> queue;
    PromptHandler* previous = nullptr;
};
