#pragma once

#include "jsontextrule.h"

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
/// UTF-8, halves of surrogate pairs, and objects and lists that stand in each other more than
/// MaximumNesting deep. Only a byte order mark in front is let pass.
///
/// Every operation throws CJsonFault when the text does not hold what is asked for.
class CJsonScanner
{
public:
    static constexpr int MAXIMUM_NESTING = 16;

    explicit CJsonScanner(const QByteArray &text);

    /// Enters an object. Each call of nextMember() then positions on the next member's value, or
    /// leaves the object and returns false.
    void beginObject();
    [[nodiscard]] bool nextMember(QString &name);

    /// The same for arrays.
    void beginArray();
    [[nodiscard]] bool nextElement();

    /// A text of any length, with its escape sequences resolved.
    [[nodiscard]] QString readText();

    /// A text as @p rule wants it.
    [[nodiscard]] QString readText(const CTextRule &rule);

    /// A whole number from @p minimum to @p maximum.
    [[nodiscard]] qint64 readInteger(qint64 minimum, qint64 maximum);

    [[nodiscard]] bool readBoolean();

    /// Passes over one value of any kind, which has to be faultless JSON.
    void skipValue();

    /// Nothing but white space may follow.
    void expectEnd();

    /// The place of the value that is read next or was just entered, for failAt().
    [[nodiscard]] int getPosition() const;

    /// From 1.
    [[nodiscard]] int getLine(int position) const;

    /// Reports @p problem at the current value, or at a @p position seen before. @p member is a
    /// field of the object or list that was just left.
    [[noreturn]] void fail(const Text::CErrorText &problem) const;
    [[noreturn]] void failAt(int position, const Text::CErrorText &problem,
                             const QString &member = QString()) const;

    /// Reports at the current value that something else than @p expected stands there.
    [[noreturn]] void failExpected(const Text::CErrorText &expected) const;

private:
    struct CLevel
    {
        bool isArray = false;
        int count = 0; ///< members or elements begun so far
        QString name; ///< current member of an object
    };

    void skipSpace();
    void begin(char bracket, bool isArray);
    bool nextItem(char closing);
    bool takeWord(const char *word);
    void skipNumber();
    QByteArray takeNumber();
    QString readString();
    ushort readHexadecimal();
    [[nodiscard]] bool isAt(char character) const;
    [[nodiscard]] Text::CErrorText getFound() const;
    [[nodiscard]] QString getField(const QString &member) const;

    const QByteArray m_text;
    int m_offset = 0;
    int m_valueOffset = 0;
    QVector<CLevel> m_levels;
};

} // namespace Viewer::Json
