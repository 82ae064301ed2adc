#pragma once
#include <QFont>

class QPrinter;
#include <QString>
#include <optional>

// Every message, input, file, colour, font and folder box of the program goes through here,
// so that tests can answer them from a script.
//
// MsgBox styles are the platform's numbers: buttons 0 OK, 1 OK/Cancel, 2 Abort/Retry/Ignore,
// 3 Yes/No/Cancel, 4 Yes/No, 5 Retry/Cancel; plus the icon 16 critical, 32 question,
// 48 exclamation, 64 information. Answers: 1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore,
// 6 Yes, 7 No.
namespace Style {
constexpr int OkOnly = 0, OkCancel = 1, AbortRetryIgnore = 2, YesNoCancel = 3, YesNo = 4, RetryCancel = 5;
constexpr int Critical = 16, Question = 32, Exclamation = 48, Information = 64;
}
namespace Answer {
constexpr int OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7;
}

class PromptHandler {
public:
    virtual ~PromptHandler() = default;
    virtual int msgBox(const QString& text, int style, const QString& title) = 0;
    // Empty string when cancelled.
    virtual QString inputBox(const QString& prompt, const QString& title, const QString& deflt) = 0;
    virtual QString openFile(const QString& title, const QString& filter, const QString& folder) = 0;
    virtual QString saveFile(const QString& title, const QString& filter, const QString& folder) = 0;
    virtual QString folder(const QString& title, const QString& start) = 0;
    // The platform colour value (red in the low byte), nothing when cancelled.
    virtual std::optional<int> colour(int initial) = 0;
    virtual std::optional<QFont> font(const QFont& initial) = 0;
    // The print dialog on a printer; offerSelection lets the user print the selection only.
    // False when cancelled.
    virtual bool print(QPrinter& printer, bool offerSelection) = 0;
    // The page setup dialog on a printer; false when cancelled.
    virtual bool pageSetup(QPrinter& printer, const QString& title) = 0;
};

// The handler in force; the real one (Qt dialogs) unless a test has installed another.
PromptHandler& prompts();
void setPromptHandler(PromptHandler* handler);  // null restores the real one

// An empty title means the application's title.
int MsgBox(const QString& text, int style = 0, const QString& title = {});
QString InputBox(const QString& prompt, const QString& title = {}, const QString& deflt = {});

// The real handler: modal Qt dialogs.
class QtPrompts : public PromptHandler {
public:
    int msgBox(const QString& text, int style, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title, const QString& deflt) override;
    QString openFile(const QString& title, const QString& filter, const QString& folder) override;
    QString saveFile(const QString& title, const QString& filter, const QString& folder) override;
    QString folder(const QString& title, const QString& start) override;
    std::optional<int> colour(int initial) override;
    std::optional<QFont> font(const QFont& initial) override;
    bool print(QPrinter& printer, bool offerSelection) override;
    bool pageSetup(QPrinter& printer, const QString& title) override;
};
