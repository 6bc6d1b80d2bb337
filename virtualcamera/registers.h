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

    /// The same for numbers that lie there with their last byte first.
    void setLittleWord(quint32 address, quint32 value);
    void setLittleLong(quint32 address, quint64 value);
    [[nodiscard]] quint32 getLittleWord(quint32 address) const;

    void setBytes(quint32 address, const QByteArray &bytes);

    /// Fills @p size bytes; one of them stays for the end of the text.
    void setText(quint32 address, const QByteArray &text, int size);

    [[nodiscard]] const QByteArray &getBootstrap() const { return m_bootstrap; }
    [[nodiscard]] const QByteArray &getFeatures() const { return m_features; }

private:
    QByteArray m_bootstrap;
    QByteArray m_features;
};

} // namespace VirtualCamera
