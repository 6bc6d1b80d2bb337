#include "viewer/camera/genicam/featuredescription.h"

#include <QTest>

#include <zip.h>

using namespace Viewer::Camera::GenICam;

static QByteArray makeDescription(const QByteArray &nodes)
{
    return "<?xml version=\"1.0\"?><RegisterDescription>" + nodes + "</RegisterDescription>";
}

/// @p contents as the only entry of an archive, or an archive without entries.
static QByteArray pack(const QByteArray &contents)
{
    zip_error_t error;
    zip_source_t *const file = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(file);
    zip_t *const archive = zip_open_from_source(file, ZIP_TRUNCATE, &error);
    zip_file_add(archive, "camera.xml",
                 zip_source_buffer(archive, contents.constData(), zip_uint64_t(contents.size()), 0),
                 0);
    zip_close(archive);
    zip_source_open(file);
    zip_source_seek(file, 0, SEEK_END);
    QByteArray bytes(int(zip_source_tell(file)), '\0');
    zip_source_seek(file, 0, SEEK_SET);
    zip_source_read(file, bytes.data(), zip_uint64_t(bytes.size()));
    zip_source_close(file);
    zip_source_free(file);
    return bytes;
}

/// Nodes of which each refers @p references times to the next.
static QByteArray makeChain(int length, int references)
{
    QByteArray nodes;
    for (int i = 0; i < length; ++i)
        nodes += "<IntSwissKnife Name=\"N" + QByteArray::number(i) + "\">"
            + ("<pVariable>N" + QByteArray::number(i + 1) + "</pVariable>").repeated(references)
            + "</IntSwissKnife>";
    return nodes;
}

/// Which descriptions of cameras are kept from the library.
class CFeatureDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void places_data();
    void places();
    void descriptions_data();
    void descriptions();
    void packedDescriptions();
};

void CFeatureDescriptionTest::places_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<QString>("fault");
    QTest::addColumn<quint64>("address");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isPacked");
    const QString elsewhere = "its feature description does not lie in the camera";
    QTest::newRow("plain") << QByteArray("Local:camera.xml;10000;1F4") << QString()
                           << quint64(0x10000) << qint64(500) << false;
    QTest::newRow("packed, with a schema")
        << QByteArray("LOCAL:///a b.ZIP;0xD0000000;0x10?SchemaVersion=1.1.0") << QString()
        << quint64(0xD0000000) << qint64(16) << true;
    const auto addFault = [](const char *name, const QByteArray &url, const QString &fault) {
        QTest::newRow(name) << url << fault << quint64(0) << qint64(0) << false;
    };
    addFault("file", "File:///dev/zero", elsewhere);
    addFault("file called local", "Local:/dev/zero.xml;1;1", elsewhere);
    addFault("web", "http://a.example/camera.xml", elsewhere);
    addFault("nothing", "", elsewhere);
    addFault("no size", "Local:camera.xml;1", elsewhere);
    addFault("other ending", "Local:camera.txt;1;1", elsewhere);
    addFault("negative size", "Local:camera.xml;1;-1", elsewhere);
    addFault("empty", "Local:camera.xml;1;0", "its feature description is empty");
    addFault("large", "Local:camera.xml;1;1000001",
             "its feature description is larger than 16777216 bytes");
    addFault("huge", "Local:camera.xml;1;ffffffff",
             "its feature description is larger than 16777216 bytes");
}

void CFeatureDescriptionTest::places()
{
    QFETCH(QByteArray, url);
    const CDescriptionPlace place = readDescriptionPlace(url);
    QTEST(place.fault.getEnglish(), "fault");
    if (!place.fault.isEmpty())
        return;
    QTEST(place.address, "address");
    QTEST(place.size, "size");
    QTEST(place.isPacked, "isPacked");
}

void CFeatureDescriptionTest::descriptions_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("fault");
    const auto add = [](const char *name, const QByteArray &nodes, const char *fault) {
        QTest::newRow(name) << makeDescription(nodes) << QString(fault);
    };
    add("no nodes", "", "");
    add("chain", "<Integer Name=\"A\"><pValue>B</pValue></Integer><IntReg Name=\"B\"/>", "");
    add("two ways to one", "<Integer Name=\"A\"><pValue>B</pValue><pIndex>B</pIndex></Integer>",
        "");
    add("limits that depend on each other",
        "<Float Name=\"A\"><pValue>X</pValue><pMax>B</pMax></Float>"
        "<Float Name=\"B\"><pValue>Y</pValue><pMax>A</pMax></Float>",
        "");
    add("entries named like nodes",
        "<Enumeration Name=\"A\"><EnumEntry Name=\"B\"/><pValue>R</pValue></Enumeration>"
        "<IntReg Name=\"B\"><pIndex>A</pIndex></IntReg>",
        "");
    add("node of itself", "<Integer Name=\"A\"><pValue>A</pValue></Integer>",
        "its feature \"A\" refers to itself");
    add("circle through three",
        "<Category Name=\"Root\"><pFeature>A</pFeature></Category>"
        "<Integer Name=\"A\"><pValue> B </pValue></Integer>"
        "<IntSwissKnife Name=\"B\"><pVariable Name=\"A\">C</pVariable></IntSwissKnife>"
        "<IntReg Name=\"C\"><pAddress>A</pAddress></IntReg>",
        "its feature \"A\" refers to itself");
    add("circle through a node within",
        "<IntReg Name=\"A\"><IntSwissKnife Name=\"B\"><pVariable Name=\"V\">A</pVariable>"
        "</IntSwissKnife></IntReg>",
        "its feature \"A\" refers to itself");
    add("circle through an offset", "<IntReg Name=\"A\"><pIndex pOffset=\"A\">B</pIndex></IntReg>",
        "its feature \"A\" refers to itself");
    add("deep", QByteArray("<Group>").repeated(200),
        "its feature description is nested too deeply");
    add("not closed", "\n<Integer>", "its feature description is damaged in line 2");
    QTest::newRow("empty") << QByteArray()
                           << QString("its feature description is damaged in line 1");
    QTest::newRow("other document")
        << QByteArray("<html/>") << QString("its feature description describes no features");
    QTest::newRow("entities that grow")
        << QByteArray("<!DOCTYPE x [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]>"
                      "<RegisterDescription>&b;</RegisterDescription>")
        << QString("its feature description defines entities");
    add("long chain", makeChain(100000, 1), "its feature \"N99800\" refers to too many others");
    add("chain of pairs", makeChain(60, 2), "its feature \"N37\" refers to too many others");
    add("real chain of pairs", makeChain(20, 2), "");
}

void CFeatureDescriptionTest::descriptions()
{
    QFETCH(QByteArray, xml);
    QTEST(findDescriptionFault(xml, false).getEnglish(), "fault");
}

void CFeatureDescriptionTest::packedDescriptions()
{
    const QByteArray description = makeDescription("<Integer Name=\"A\"/>");
    const QByteArray packed = pack(description);
    QCOMPARE(findDescriptionFault(packed, true).getEnglish(), QString());
    QCOMPARE(findDescriptionFault(pack("<Reg"), true).getEnglish(),
             "its feature description is damaged in line 1");
    QCOMPARE(findDescriptionFault(packed.left(packed.size() - 10), true).getEnglish(),
             "its packed feature description is damaged");
    QCOMPARE(findDescriptionFault(description, true).getEnglish(),
             "its packed feature description is damaged");
    const QByteArray bomb = pack(QByteArray(int(MAXIMUM_DESCRIPTION) + 1, ' '));
    QVERIFY(bomb.size() < 200000);
    QCOMPARE(findDescriptionFault(bomb, true).getEnglish(),
             "its feature description is larger than 67108864 bytes");
}

QTEST_GUILESS_MAIN(CFeatureDescriptionTest)
#include "tst_featuredescription.moc"
