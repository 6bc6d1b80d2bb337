#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

namespace Viewer::Signature {

/// One element of ASN.1 in its distinguished encoding (DER).
struct CDerElement
{
    /// The tags that occur here. Only those of one byte are read.
    enum ETag : quint8 {
        Integer = 0x02,
        OctetString = 0x04,
        ObjectId = 0x06,
        Sequence = 0x30,
        Set = 0x31,
        Context0Primitive = 0x80,
        Context0 = 0xA0,
        Context1 = 0xA1,
    };

    quint8 tag = 0;
    QByteArray content;
    QByteArray bytes; ///< the whole element
};

/// Splits @p bytes into elements that stand behind each other; nothing: they are none. Reads no
/// further than one element more than @p maximum, by which its caller knows that there are too
/// many.
[[nodiscard]] std::optional<QVector<CDerElement>> readDer(const QByteArray &bytes, int maximum);

[[nodiscard]] QByteArray makeDer(CDerElement::ETag tag, const QByteArray &content);

} // namespace Viewer::Signature
