#pragma once

#include "viewer/text/errortext.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Viewer::CameraPool::UpdateFile {

/// What a field of the manifest breaks. Thrown and caught within the parser.
struct CFieldFault
{
    Text::CErrorText sentence;
};

/// What a text of the manifest has to be like.
struct CTextRule
{
    int maximumLength = 0; ///< in UTF-16 units
    bool mayBeEmpty = false;
    /// Line feeds and tabulators are allowed, and white space at both ends.
    bool hasSeveralLines = false;
};

/// Takes the fields out of one JSON object, and knows the object's place, so that a fault names the
/// field by its whole path, as in updates[0].steps[2].payload. Every operation throws CFieldFault.
class CJsonObjectReader
{
public:
    /// @p path is the object's own; empty for the top level.
    CJsonObjectReader(const QJsonObject &object, const QString &path);

    /// The object at @p index of the list that readList() gave for @p name.
    [[nodiscard]] CJsonObjectReader getObject(const QJsonArray &list, const QString &name,
                                              int index) const;

    /// Refuses every field whose name is not listed.
    void checkNames(const QStringList &knownNames) const;

    [[nodiscard]] bool has(const QString &name) const;
    [[nodiscard]] QString readText(const QString &name, const CTextRule &rule) const;
    [[nodiscard]] QString readOptionalText(const QString &name, const CTextRule &rule) const;
    [[nodiscard]] qint64 readInteger(const QString &name, qint64 minimum, qint64 maximum) const;
    [[nodiscard]] QJsonArray readList(const QString &name, int minimumSize, int maximumSize) const;

    /// A list of texts, none of them twice.
    [[nodiscard]] QStringList readTexts(const QString &name, int minimumSize, int maximumSize,
                                        const CTextRule &rule) const;

    /// Throws the sentence 'the field "<path>" <cause>'.
    [[noreturn]] void fail(const QString &name, const Text::CErrorText &cause) const;

private:
    [[nodiscard]] QString getPath(const QString &name) const;
    [[nodiscard]] QJsonValue getValue(const QString &name, QJsonValue::Type type) const;
    [[nodiscard]] QString checkText(const QString &name, const QString &text,
                                    const CTextRule &rule) const;

    const QJsonObject m_object;
    const QString m_path;
};

} // namespace Viewer::CameraPool::UpdateFile
