#include "registers.h"

#include "gvcp.h"
#include "memorymap.h"

#include <QtEndian>

namespace VirtualCamera {

CRegisters::CRegisters()
    : m_bootstrap(MemoryMap::BOOTSTRAP_SIZE, '\0')
    , m_features(MemoryMap::FEATURES_SIZE, '\0')
{
}

void CRegisters::clearFeatures()
{
    m_features.fill('\0');
}

void CRegisters::setBytes(quint32 address, const QByteArray &bytes)
{
    if (address < MemoryMap::FEATURES)
        m_bootstrap.replace(static_cast<int>(address), bytes.size(), bytes);
    else
        m_features.replace(static_cast<int>(address - MemoryMap::FEATURES), bytes.size(), bytes);
}

void CRegisters::setWord(quint32 address, quint32 value)
{
    QByteArray word;
    Gvcp::appendWord(word, value);
    setBytes(address, word);
}

quint32 CRegisters::getWord(quint32 address) const
{
    return address < MemoryMap::FEATURES
        ? Gvcp::readWord(m_bootstrap, static_cast<int>(address))
        : Gvcp::readWord(m_features, static_cast<int>(address - MemoryMap::FEATURES));
}

void CRegisters::setFloat(quint32 address, float value)
{
    setWord(address, Gvcp::toWord(value));
}

float CRegisters::getFloat(quint32 address) const
{
    return Gvcp::toFloat(getWord(address));
}

void CRegisters::setLittleWord(quint32 address, quint32 value)
{
    setWord(address, qbswap(value));
}

void CRegisters::setLittleLong(quint32 address, quint64 value)
{
    setLittleWord(address, static_cast<quint32>(value));
    setLittleWord(address + 4, static_cast<quint32>(value >> 32));
}

quint32 CRegisters::getLittleWord(quint32 address) const
{
    return qbswap(getWord(address));
}

void CRegisters::setText(quint32 address, const QByteArray &text, int size)
{
    setBytes(address, text.left(size - 1).leftJustified(size, '\0'));
}

} // namespace VirtualCamera
