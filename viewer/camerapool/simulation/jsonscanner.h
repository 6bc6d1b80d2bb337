#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Viewer::CameraPool::Simulation {

/// Reads a JSON text value by value, in the order in which it stands there, and knows the place and
/// the field of everything it reads. A document tree would not: it keeps no positions, so a wrong
/// value could be refused, but not found.
///
/// Every operation throws `Core::Exception::BaseException` when the text does not hold what is
/// asked for. The message is one sentence with file, line, column and field. Lines and columns
/// count from 1, columns in characters.
class CJsonScanner
{
public:
    /// @p description says what the text is, for messages: `Camera description "a.json"`.
    CJsonScanner(const QByteArray &text, const QString &description);

    /// Enters an object. Each call of nextMember() then positions on the next member's value, or
    /// leaves the object and returns false.
    void beginObject();
    [[nodiscard]] bool nextMember(QString &name);

    /// The same for arrays.
    void beginArray();
    [[nodiscard]] bool nextElement();

    /// A text of 1 to @p maximumLength characters on one line.
    [[nodiscard]] QString readText(int maximumLength);

    /// A whole number from @p minimum to @p maximum, written without fraction and exponent.
    [[nodiscard]] qint64 readInteger(qint64 minimum, qint64 maximum);

    [[nodiscard]] bool readBoolean();

    /// Nothing but white space may follow.
    void expectEnd();

    /// The place of the value that is read next or was just entered, for failAt().
    [[nodiscard]] int getPosition() const;

    [[nodiscard]] int getLine(int position) const;

    /// Reports @p problem at the current value, or at a @p position seen before.
    [[noreturn]] void fail(const QString &problem) const;
    [[noreturn]] void failAt(int position, const QString &problem) const;

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
    QString readString();
    ushort readHexadecimal();
    [[nodiscard]] bool isAt(char character) const;
    [[nodiscard]] QString getFound() const;
    [[nodiscard]] QString getField() const;

    const QByteArray m_text;
    const QString m_description;
    int m_offset = 0;
    int m_valueOffset = 0;
    QVector<CLevel> m_levels;
};

} // namespace Viewer::CameraPool::Simulation
