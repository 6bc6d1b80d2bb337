#include "featuredescription.h"

#include "viewer/text/visibletext.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>
#include <QVector>
#include <QXmlStreamReader>

#include <zip.h>

#include <algorithm>
#include <memory>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;

namespace {

/// Elements within elements; real descriptions come to about ten.
constexpr int MAXIMUM_DEPTH = 100;

/// Nodes that the library goes through, one within the call of another, for one value.
constexpr int MAXIMUM_CHAIN = 200;

/// Nodes that it looks at for one value, each as often as it is referred to.
constexpr double MAXIMUM_COST = 1e7;

/// The elements that name a node whose value is needed for that of the node around them, or one
/// that stands in its category. The others may well lead in circles: limits that depend on each
/// other, selectors, what a change makes invalid.
bool isReference(const QString &element)
{
    static const QSet<QString> REFERENCES{
        QStringLiteral("pAddress"),      QStringLiteral("pFeature"),
        QStringLiteral("pIndex"),        QStringLiteral("pLength"),
        QStringLiteral("pValue"),        QStringLiteral("pValueDefault"),
        QStringLiteral("pValueIndexed"), QStringLiteral("pVariable"),
        QStringLiteral("pCommandValue"),
    };
    return REFERENCES.contains(element);
}

/// The elements whose name is that of a node. Entries of enumerations, constants and variables of
/// formulas have names of their own that may be those of nodes.
bool isNode(const QString &element)
{
    static const QSet<QString> NODES{
        QStringLiteral("AdvFeatureLock"), QStringLiteral("Boolean"),
        QStringLiteral("Category"),       QStringLiteral("Command"),
        QStringLiteral("ConfRom"),        QStringLiteral("Converter"),
        QStringLiteral("Enumeration"),    QStringLiteral("Float"),
        QStringLiteral("FloatReg"),       QStringLiteral("IntConverter"),
        QStringLiteral("IntKey"),         QStringLiteral("IntReg"),
        QStringLiteral("IntSwissKnife"),  QStringLiteral("Integer"),
        QStringLiteral("MaskedIntReg"),   QStringLiteral("Node"),
        QStringLiteral("Register"),       QStringLiteral("SmartFeature"),
        QStringLiteral("String"),         QStringLiteral("StringReg"),
        QStringLiteral("StructEntry"),    QStringLiteral("StructReg"),
        QStringLiteral("SwissKnife"),     QStringLiteral("TextDesc"),
    };
    return NODES.contains(element);
}

/// The nodes of a description, by number, and which need which.
class CReferences
{
public:
    int getNode(const QString &name)
    {
        const auto known = m_numbers.constFind(name);
        if (known != m_numbers.constEnd())
            return *known;
        m_numbers.insert(name, m_needed.size());
        m_names.append(name);
        m_needed.append(QVector<int>());
        return m_needed.size() - 1;
    }

    void add(int node, int needed) { m_needed[node].append(needed); }

    /// Why the library would not come to an end with these nodes; empty: it would.
    [[nodiscard]] CErrorText findFault() const
    {
        QVector<CState> states(m_needed.size());
        QVector<int> open; // each needed by the one before
        for (int start = 0; start < m_needed.size(); ++start) {
            if (!states.at(start).isDone)
                open.append(start);
            while (!open.isEmpty()) {
                const int node = open.constLast();
                CState &state = states[node];
                state.isOpen = true;
                if (state.next == m_needed.at(node).size()) {
                    state.isOpen = false;
                    state.isDone = true;
                    open.removeLast();
                    const CErrorText fault = weigh(node, states);
                    if (!fault.isEmpty())
                        return fault;
                    continue;
                }
                const int needed = m_needed.at(node).at(state.next++);
                if (states.at(needed).isOpen)
                    return CErrorText::tr("its feature \"%1\" refers to itself")
                        .arg(getShownName(needed));
                if (!states.at(needed).isDone)
                    open.append(needed);
            }
        }
        return {};
    }

private:
    struct CState
    {
        bool isOpen = false;
        bool isDone = false;
        int next = 0; ///< among those that the node needs
        int chain = 1; ///< nodes in the longest way down from here
        double cost = 1; ///< nodes on all ways down from here
    };

    [[nodiscard]] CErrorText weigh(int node, QVector<CState> &states) const
    {
        CState &state = states[node];
        for (const int needed : m_needed.at(node)) {
            state.chain = std::max(state.chain, states.at(needed).chain + 1);
            state.cost += states.at(needed).cost;
        }
        if (state.chain <= MAXIMUM_CHAIN && state.cost <= MAXIMUM_COST)
            return {};
        return CErrorText::tr("its feature \"%1\" refers to too many others")
            .arg(getShownName(node));
    }

    [[nodiscard]] QString getShownName(int node) const { return Text::shorten(m_names.at(node)); }

    QHash<QString, int> m_numbers;
    QVector<QString> m_names;
    QVector<QVector<int>> m_needed;
};

CErrorText tooLarge(qint64 limit)
{
    return CErrorText::tr("its feature description is larger than %1 bytes")
        .arg(QString::number(limit));
}

/// Goes through a description once and collects what it needs to judge it.
class CDescriptionScan
{
public:
    explicit CDescriptionScan(const QByteArray &xml)
        : m_reader(xml)
    {
    }

    CErrorText findFault()
    {
        while (!m_reader.atEnd()) {
            const QXmlStreamReader::TokenType token = m_reader.readNext();
            if (token == QXmlStreamReader::StartElement && !enter())
                return CErrorText::tr("its feature description is nested too deeply");
            if (token == QXmlStreamReader::EndElement)
                m_nodes.removeLast();
            if (token == QXmlStreamReader::DTD && !m_reader.entityDeclarations().isEmpty())
                return CErrorText::tr("its feature description defines entities");
        }
        if (m_reader.hasError())
            return CErrorText::tr("its feature description is damaged in line %1")
                .arg(QString::number(m_reader.lineNumber()));
        if (!m_isDescription)
            return CErrorText::tr("its feature description describes no features");
        return m_references.findFault();
    }

private:
    bool enter()
    {
        if (m_nodes.size() == MAXIMUM_DEPTH)
            return false;
        if (m_nodes.isEmpty())
            m_isDescription = m_reader.name() == QLatin1String("RegisterDescription");
        const QString element = m_reader.name().toString();
        const int around = m_nodes.isEmpty() ? NONE : m_nodes.constLast();
        if (around != NONE && isReference(element)) {
            refer(around, m_reader.attributes().value(QLatin1String("pOffset")).toString());
            refer(around, m_reader.readElementText(QXmlStreamReader::SkipChildElements));
            return true;
        }
        int node = around;
        if (isNode(element)) {
            node = m_references.getNode(
                m_reader.attributes().value(QLatin1String("Name")).toString());
            // One that is written down within another one is part of its value.
            if (around != NONE)
                m_references.add(around, node);
        }
        m_nodes.append(node);
        return true;
    }

    void refer(int node, const QString &name)
    {
        if (!name.isEmpty())
            m_references.add(node, m_references.getNode(name.trimmed()));
    }

    static constexpr int NONE = -1;

    QXmlStreamReader m_reader;
    CReferences m_references;
    QVector<int> m_nodes; ///< that each open element lies in
    bool m_isDescription = false;
};

/// What the library would unpack: the first entry. Empty, with a @p fault, when there is none.
QByteArray unpack(const QByteArray &archive, CErrorText &fault)
{
    const CErrorText damaged = CErrorText::tr("its packed feature description is damaged");
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *const source = zip_source_buffer_create(
        archive.constData(), static_cast<zip_uint64_t>(archive.size()), 0, &error);
    zip_t *const opened = source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    if (!opened) {
        zip_source_free(source);
        fault = damaged;
        return {};
    }
    const std::unique_ptr<zip_t, decltype(&zip_discard)> zip(opened, zip_discard);
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> entry(zip_fopen_index(opened, 0, 0),
                                                                   zip_fclose);
    if (!entry) {
        fault = damaged;
        return {};
    }
    // What the archive says about the size is not believed.
    constexpr int BLOCK = 256 * 1024;
    QByteArray contents;
    for (;;) {
        const int size = contents.size();
        contents.resize(size + BLOCK);
        const zip_int64_t count = zip_fread(entry.get(), contents.data() + size, BLOCK);
        if (count < 0) {
            fault = damaged;
            return {};
        }
        contents.resize(size + static_cast<int>(count));
        if (count == 0)
            return contents;
        if (contents.size() > MAXIMUM_DESCRIPTION) {
            fault = tooLarge(MAXIMUM_DESCRIPTION);
            return {};
        }
    }
}

CErrorText findSizeFault(quint64 size)
{
    if (size == 0)
        return CErrorText::tr("its feature description is empty");
    return size > quint64(MAXIMUM_PACKED_DESCRIPTION) ? tooLarge(MAXIMUM_PACKED_DESCRIPTION)
                                                      : CErrorText();
}

} // namespace

CDescriptionPlace readDescriptionPlace(const QByteArray &url)
{
    static const QRegularExpression LOCAL(
        QStringLiteral("^local:(?:///)?[^;/\\\\]+\\.(xml|zip);"
                       "(?:0x)?([0-9a-f]{1,16});(?:0x)?([0-9a-f]{1,8})(?:\\?.*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = LOCAL.match(QString::fromLatin1(url).trimmed());
    CDescriptionPlace place;
    if (!match.hasMatch()) {
        place.fault = CErrorText::tr("its feature description does not lie in the camera");
        return place;
    }
    place.isPacked = match.captured(1).compare(QLatin1String("zip"), Qt::CaseInsensitive) == 0;
    place.address = match.captured(2).toULongLong(nullptr, 16);
    place.size = match.captured(3).toLongLong(nullptr, 16);
    place.fault = findSizeFault(quint64(place.size));
    return place;
}

CDescriptionPlace readManifestEntry(const QByteArray &entry)
{
    constexpr quint32 PLAIN = 0;
    constexpr quint32 PACKED = 1;
    CDescriptionPlace place;
    if (entry.size() != MANIFEST_SIZE) {
        place.fault = CErrorText::tr("its feature description does not lie in the camera");
        return place;
    }
    const quint32 kind = qFromLittleEndian<quint32>(entry.constData() + 4) >> 10 & 0x3F;
    const auto size = qFromLittleEndian<quint64>(entry.constData() + 16);
    place.fault = kind == PLAIN || kind == PACKED
        ? findSizeFault(size)
        : CErrorText::tr("its feature description could not be read");
    place.isPacked = kind == PACKED;
    place.address = qFromLittleEndian<quint64>(entry.constData() + 8);
    place.size = static_cast<qint64>(size);
    return place;
}

CErrorText findDescriptionFault(const QByteArray &file, bool isPacked)
{
    if (!isPacked)
        return CDescriptionScan(file).findFault();
    CErrorText fault;
    const QByteArray xml = unpack(file, fault);
    return fault.isEmpty() ? CDescriptionScan(xml).findFault() : fault;
}

} // namespace Viewer::Camera::GenICam
