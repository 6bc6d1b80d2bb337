#pragma once

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Viewer::Json {

/// Reads a JSON text value by value, in the order in which it stands there, and knows the place and
/// the field of everything it reads. A document tree would not: it keeps no positions, so a wrong
/// value could be refused, but not found.
///
/// It is strict: what the grammar of JSON does not know is refused, and so are texts that are not
/// UTF-8 and halves of surrogate pairs. Only a byte order mark in front is let pass.
///
/// Every operation throws CJsonFault when the text does not hold what is asked for.
class CJsonScanner
{
public:
    enum class EKind { Object, Array, Text, Number, Boolean, Null, None };

    explicit CJsonScanner(const QByteArray &text);

    /// What the value that is read next can only be, by its first character. None: no value.
    [[nodiscard]] EKind getKind();

    /// Enters an object. Each call of nextMember() then positions on the next member's value, or
    /// leaves the object and returns false.
    void beginObject();
    [[nodiscard]] bool nextMember(QString &name);

    /// The same for arrays.
    void beginArray();
    [[nodiscard]] bool nextElement();

    /// A text of any length, with its escape sequences resolved.
    [[nodiscard]] QString readText();

    [[nodiscard]] double readNumber();

    /// A whole number from @p minimum to @p maximum, written without fraction and exponent.
    [[nodiscard]] qint64 readInteger(qint64 minimum, qint64 maximum);

    [[nodiscard]] bool readBoolean();
    void readNull();

    /// Nothing but white space may follow.
    void expectEnd();

    /// Number of objects and lists that were entered and not left yet.
    [[nodiscard]] int getDepth() const;

    /// The place of the value that is read next or was just entered, for failAt().
    [[nodiscard]] int getPosition() const;

    /// The place of the name of the current member.
    [[nodiscard]] int getNamePosition() const;

    /// From 1; columns count characters.
    [[nodiscard]] int getLine(int position) const;
    [[nodiscard]] int getColumn(int position) const;

    /// Reports @p problem at the current value, or at a @p position seen before.
    [[noreturn]] void fail(const Text::CErrorText &problem) const;
    [[noreturn]] void failAt(int position, const Text::CErrorText &problem) const;

    /// Reports at the current value that something else than @p expected stands there.
    [[noreturn]] void failExpected(const Text::CErrorText &expected) const;

private:
    struct CLevel
    {
        bool isArray = false;
        int count = 0; ///< members or elements begun so far
        QString name; ///< current member of an object
        int nameOffset = 0;
    };

    void skipSpace();
    void begin(char bracket, bool isArray);
    bool nextItem(char closing);
    bool takeWord(const char *word);
    QByteArray takeNumber();
    QString readString();
    ushort readHexadecimal();
    [[nodiscard]] bool isAt(char character) const;
    [[nodiscard]] Text::CErrorText getFound() const;
    [[nodiscard]] QString getField() const;

    const QByteArray m_text;
    int m_offset = 0;
    int m_valueOffset = 0;
    QVector<CLevel> m_levels;
};

} // namespace Viewer::Json
