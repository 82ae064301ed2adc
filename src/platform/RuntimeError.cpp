#include "platform/RuntimeError.h"


const char* RuntimeError::what() const noexcept
{
    whatText = runtimeErrorText(*this).toStdString();
    return whatText.c_str();
}

RuntimeError RuntimeError::invalidCall(const QString& src) { return {5, QStringLiteral("Invalid procedure call or argument"), src}; }
RuntimeError RuntimeError::overflow(const QString& src) { return {6, QStringLiteral("Overflow"), src}; }
RuntimeError RuntimeError::divisionByZero(const QString& src) { return {11, QStringLiteral("Division by zero"), src}; }
RuntimeError RuntimeError::typeMismatch(const QString& src) { return {13, QStringLiteral("Type mismatch"), src}; }
RuntimeError RuntimeError::badFileName(const QString& src) { return {52, QStringLiteral("Bad file name or number"), src}; }
RuntimeError RuntimeError::invalidPicture(const QString& src) { return {481, QStringLiteral("Invalid picture"), src}; }
RuntimeError RuntimeError::fileNotFound(const QString& src) { return {53, QStringLiteral("File not found"), src}; }
RuntimeError RuntimeError::deviceIoError(const QString& src) { return {57, QStringLiteral("Device I/O error"), src}; }
RuntimeError RuntimeError::fileAlreadyExists(const QString& src) { return {58, QStringLiteral("File already exists"), src}; }
RuntimeError RuntimeError::pathFileAccess(const QString& src) { return {75, QStringLiteral("Path/File access error"), src}; }
RuntimeError RuntimeError::pathNotFound(const QString& src) { return {76, QStringLiteral("Path not found"), src}; }
RuntimeError RuntimeError::objectNotSet(const QString& src)
{
    return {91, QStringLiteral("Object variable or With block variable not set"), src};
}
RuntimeError RuntimeError::pastEndOfFile(const QString& src) { return {62, QStringLiteral("Input past end of file"), src}; }
RuntimeError RuntimeError::objectRequired(const QString& src) { return {424, QStringLiteral("Object required"), src}; }
RuntimeError RuntimeError::invalidProperty(const QString& src) { return {380, QStringLiteral("Invalid property value"), src}; }
RuntimeError RuntimeError::noSuchMember(const QString& member, const QString& src)
{
    return {438, QStringLiteral("Object doesn't support this property or method"),
            src.isEmpty() ? member : src + QLatin1Char('.') + member};
}

QString runtimeErrorText(const RuntimeError& e)
{
    return QStringLiteral("Run-time error '%1':\n\n%2").arg(e.number).arg(e.description);
}

bool OnErrorExit(const std::function<void()>& body)
{
    try {
        body();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

ResumeNext& ResumeNext::operator()(const std::function<void()>& statement)
{
    try {
        statement();
    } catch (const RuntimeError&) {
        ++errorCount;
    }
    return *this;
}

bool ResumeNext::test(const std::function<bool()>& condition)
{
    try {
        return condition();
    } catch (const RuntimeError&) {
        ++errorCount;
        return true;
    }
}
