#include "jsontext.h"

#include "viewer/json/jsonfault.h"
#include "viewer/json/jsonscanner.h"
#include "viewer/text/visibletext.h"

#include <QJsonArray>
#include <QMap>

namespace Viewer::CameraPool::UpdateFile {

namespace {

using Json::CJsonFault;
using Json::CJsonScanner;
using Text::CErrorText;
using EKind = CJsonScanner::EKind;

/// A rule of ours that JSON itself does not have is broken.
struct CRuleFault
{
    CErrorText sentence;
};

CErrorText toPlace(int line, int column)
{
    return CErrorText::tr("line %1, column %2").arg(QString::number(line), QString::number(column));
}

/// Makes a document of what the scanner reads.
class CBuilder
{
public:
    CBuilder(const QByteArray &text, int maximumNesting)
        : m_scanner(text)
        , m_maximumNesting(maximumNesting)
    {
    }

    QJsonObject build()
    {
        const QJsonValue value = readValue();
        m_scanner.expectEnd();
        if (!value.isObject())
            throw CRuleFault{CErrorText::tr("has to be an object in braces at its top level")};
        return value.toObject();
    }

private:
    QJsonValue readValue()
    {
        switch (m_scanner.getKind()) {
        case EKind::Object:
            return readObject();
        case EKind::Array:
            return readList();
        case EKind::Text:
            return m_scanner.readText();
        case EKind::Number:
            return m_scanner.readNumber();
        case EKind::Boolean:
            return m_scanner.readBoolean();
        case EKind::Null:
            m_scanner.readNull();
            return QJsonValue();
        case EKind::None:
            break;
        }
        m_scanner.failExpected(CErrorText::tr("a value"));
    }

    QJsonObject readObject()
    {
        checkNesting();
        // Sorted, as an object takes names in order without moving those that it has.
        QMap<QString, QJsonValue> members;
        m_scanner.beginObject();
        QString name;
        while (m_scanner.nextMember(name)) {
            if (members.contains(name))
                throw CRuleFault{
                    CErrorText::tr("has the name \"%1\" twice in one object, again at %2")
                        .arg(Text::shorten(name), describePlace(m_scanner.getNamePosition()))};
            members.insert(name, readValue());
        }
        QJsonObject object;
        for (auto member = members.cbegin(); member != members.cend(); ++member)
            object.insert(member.key(), member.value());
        return object;
    }

    QJsonArray readList()
    {
        checkNesting();
        QJsonArray list;
        m_scanner.beginArray();
        while (m_scanner.nextElement())
            list.append(readValue());
        return list;
    }

    /// Keeps the recursion short, too.
    void checkNesting() const
    {
        if (m_scanner.getDepth() >= m_maximumNesting)
            throw CRuleFault{CErrorText::tr("is nested more than %1 levels deep at %2")
                                 .arg(QString::number(m_maximumNesting),
                                      describePlace(m_scanner.getPosition()))};
    }

    [[nodiscard]] CErrorText describePlace(int position) const
    {
        return toPlace(m_scanner.getLine(position), m_scanner.getColumn(position));
    }

    CJsonScanner m_scanner;
    const int m_maximumNesting;
};

} // namespace

CJsonResult parseJsonObject(const QByteArray &text, int maximumNesting)
{
    if (text.trimmed().isEmpty())
        return {QJsonObject(), CErrorText::tr("is empty")};
    try {
        return {CBuilder(text, maximumNesting).build(), {}};
    } catch (const CRuleFault &fault) {
        return {QJsonObject(), fault.sentence};
    } catch (const CJsonFault &fault) {
        return {QJsonObject(),
                CErrorText::tr("is not JSON at %1: %2")
                    .arg(toPlace(fault.line, fault.column), fault.problem)};
    }
}

} // namespace Viewer::CameraPool::UpdateFile
