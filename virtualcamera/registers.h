#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace VirtualCamera {

/// The words of a camera: its bootstrap registers and its features. What they mean, and who may
/// write them, is not theirs to know.
class CRegisters
{
public:
    CRegisters();

    void clearFeatures();

    /// The address has to be one of theirs.
    void setWord(quint32 address, quint32 value);
    [[nodiscard]] quint32 getWord(quint32 address) const;

    /// The same for a number of 32 bits by IEEE 754.
    void setFloat(quint32 address, float value);
    [[nodiscard]] float getFloat(quint32 address) const;

    /// Fills @p size bytes; one of them stays for the end of the text.
    void setText(quint32 address, const QByteArray &text, int size);

    [[nodiscard]] const QByteArray &getBootstrap() const { return m_bootstrap; }
    [[nodiscard]] const QByteArray &getFeatures() const { return m_features; }

private:
    void setBytes(quint32 address, const QByteArray &bytes);

    QByteArray m_bootstrap;
    QByteArray m_features;
};

} // namespace VirtualCamera
