#pragma once
#include <QString>

// The sequential reader of the settings files: one field at a time, fields delimited by commas
// or line ends, double quotes honoured. It never loops without consuming input, so any bytes
// end in values or in "Input past end of file".
class FieldReader {
public:
    explicit FieldReader(QString text);

    // The next field as text. Blanks before it are skipped. A field that starts with a double
    // quote runs to the next double quote and the rest of its line is dropped; any other field
    // ends at the next comma or line end, trailing blanks removed. Reading when nothing is
    // left is run-time error 62.
    QString next();
    bool atEnd() const;
    int fieldsRead() const { return count; }

    // Conversions of a field into the types the settings hold. A number may carry a type
    // suffix ("255&"); an empty field is 0; anything else is run-time error 13, a value out of
    // range error 6.
    static qint32 toLong(const QString& field);
    static qint16 toInteger(const QString& field);
    // A check box value: 0, 1 or 2, else run-time error 380.
    static int toCheckValue(const QString& field);

private:
    void skipLineEnd();
    QString text;
    qsizetype pos = 0;
    int count = 0;
};
