#pragma once
#include <QString>
#include <exception>
#include <functional>

// The one exception type of the program: a run-time error with the platform's number.
struct RuntimeError : std::exception {
    int number = 0;
    QString description;
    QString source;

    RuntimeError(int n, QString desc, QString src = {})
        : number(n), description(std::move(desc)), source(std::move(src)) {}
    const char* what() const noexcept override;

    // The well-known errors, with the platform's texts.
    static RuntimeError invalidCall(const QString& src = {});      // 5
    static RuntimeError overflow(const QString& src = {});         // 6
    static RuntimeError divisionByZero(const QString& src = {});   // 11
    static RuntimeError typeMismatch(const QString& src = {});     // 13
    static RuntimeError badFileName(const QString& src = {});      // 52
    static RuntimeError fileNotFound(const QString& src = {});     // 53
    static RuntimeError deviceIoError(const QString& src = {});    // 57
    static RuntimeError fileAlreadyExists(const QString& src = {}); // 58
    static RuntimeError pastEndOfFile(const QString& src = {});    // 62
    static RuntimeError pathFileAccess(const QString& src = {});   // 75
    static RuntimeError pathNotFound(const QString& src = {});     // 76
    static RuntimeError objectNotSet(const QString& src = {});     // 91
    static RuntimeError objectRequired(const QString& src = {});   // 424
    static RuntimeError invalidPicture(const QString& src = {});   // 481
    static RuntimeError noSuchMember(const QString& member, const QString& src = {}); // 438
    static RuntimeError invalidProperty(const QString& src = {});  // 380

private:
    mutable std::string whatText;
};

// "Run-time error 'N':" followed by a blank line and the description: the text of the
// platform's box for an unguarded failure.
QString runtimeErrorText(const RuntimeError& e);

// The trap that ends the procedure: runs body; a RuntimeError ends it, optionally with a
// message box (text, style, title). Returns false when the trap caught something.
bool OnErrorExit(const std::function<void()>& body);
// (defined with the prompts, which show the message)
bool OnErrorExit(const std::function<void()>& body, const QString& message, int style,
                 const QString& title);

// Errors ignored statement by statement: each call is one statement.
class ResumeNext {
public:
    // Runs one statement; a failure is swallowed and counted.
    ResumeNext& operator()(const std::function<void()>& statement);
    // The test of an If: a failure makes the branch run, as the next statement is the
    // first of the branch.
    bool test(const std::function<bool()>& condition);
    int errors() const { return errorCount; }

private:
    int errorCount = 0;
};
