#include "testmaker.h"
#include "viewer/signature/signaturelimits.h"
#include "viewer/signature/signaturepolicy.h"
#include "viewer/signature/signatureverifier.h"
#include "viewer/signature/signeddata.h"
#include "viewer/signature/signer.h"
#include "viewer/signature/truststore.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;
using namespace Viewer::Signature;
using Viewer::Text::CErrorText;

static const QByteArray MANIFEST = "{\"formatVersion\": 1}\r\n";

/// Judges signatures made by OpenSSL's functions, by its program and by our own signer.
class CSignatureTest : public QObject
{
    Q_OBJECT

private slots:
    void judges_data();
    void judges();
    void agreesWithTheProgram_data();
    void agreesWithTheProgram();
    void keepsOtherSignatures();
    void readsOnlyWhatOthersCannotWrite();
    void readsThePolicy_data();
    void readsThePolicy();

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(name); }
    void write(const char *name, const QByteArray &bytes) const;
    [[nodiscard]] CSigner readSigner(const CTestMaker &maker) const;

    const QTemporaryDir m_folder;
};

void CSignatureTest::write(const char *name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

CSigner CSignatureTest::readSigner(const CTestMaker &maker) const
{
    maker.write(path("maker"));
    CErrorText fault;
    const auto signer
        = CSigner::fromFiles(path("maker.pem"), path("maker.key"), QString(), nullptr, fault);
    if (!signer)
        qFatal("%s", qUtf8Printable(fault.getEnglish()));
    return *signer;
}

void CSignatureTest::judges_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QByteArray>("trusted");
    QTest::addColumn<QString>("verdict");
    const auto row
        = [](const char *name, const QByteArray &signature, const QByteArray &trusted,
             const QString &verdict) { QTest::newRow(name) << signature << trusted << verdict; };
    const auto refuse = [&row](const char *name, const QByteArray &signature,
                               const QByteArray &trusted, const QString &reason) {
        row(name, signature, trusted, "its signature is not trusted: " + reason);
    };
    using COptions = CTestMaker::COptions;
    using EForm = CTestMaker::EForm;
    COptions authority;
    authority.purpose.clear();
    authority.validFrom = -30;
    const CTestMaker root("Root", authority);
    const auto make = [&root](const char *name, auto change) {
        COptions options;
        options.issuer = &root;
        change(options);
        return CTestMaker(name, options);
    };
    const CTestMaker maker = make("Maker", [](COptions &) {});
    const CTestMaker own("Own");
    const CTestMaker other("Other");
    const QByteArray good = maker.sign(MANIFEST);
    QByteArray changed = good;
    changed[changed.size() - 1] = static_cast<char>(changed.back() ^ 1);
    const QByteArray trust = root.getCertificate();
    const QString notCms = "it is not a detached CMS signature in DER";

    row("by an authority's maker", good, trust, "it is signed by CN=Maker");
    row("by the maker alone", good, maker.getCertificate(), "it is signed by CN=Maker");
    row("self-signed, but trusted", own.sign(MANIFEST, "SHA512"), own.getCertificate(),
        "it is signed by CN=Own");
    row("the certificate is not in it", own.sign(MANIFEST, "SHA384", {}, EForm::WithoutCertificate),
        own.getCertificate(), "it is signed by CN=Own");

    refuse("nobody is trusted", good, {}, "CN=Maker is not among the trusted makers");
    refuse("self-signed", own.sign(MANIFEST), trust, "CN=Own is not among the trusted makers");
    refuse("another one of this name", CTestMaker("Own").sign(MANIFEST), own.getCertificate(),
           "CN=Own is not among the trusted makers");
    refuse("another manifest", maker.sign("{}"), trust,
           "it is the signature of another update.json");
    refuse("a changed signature", changed, trust,
           "it was not made with the key of CN=Maker, or by an unknown method");
    refuse("SHA-1", maker.sign(MANIFEST, "SHA1"), trust,
           "its digest is none that is known and strong enough; it has to be SHA-256, SHA-384 or "
           "SHA-512");
    refuse("RSA 2048", make("Weak", [](auto &o) { o.key = "RSA2048"; }).sign(MANIFEST), trust,
           "its RSA key has 2048 bits; at least 3072 are needed");
    refuse("an unknown curve", make("Odd", [](auto &o) { o.key = "P-521"; }).sign(MANIFEST), trust,
           "its key is of an unknown kind; known are RSA, EC P-256, EC P-384 and Ed25519");
    COptions options = authority;
    options.key = "RSA2048";
    const CTestMaker weak("Weak root", options);
    const CTestMaker child = make("Child", [&weak](COptions &o) { o.issuer = &weak; });
    refuse("a weak authority", child.sign(MANIFEST), weak.getCertificate(),
           "the certificate of CN=Weak root has a weak key, or is signed by a weak method");
    refuse("no purpose", make("Server", [](auto &o) { o.purpose = "serverAuth"; }).sign(MANIFEST),
           trust, "the certificate of CN=Server: it is not made for signing code");
    const CTestMaker expired = make("Old", [](auto &o) { o.validFrom = -9, o.validTo = -2; });
    refuse("expired", expired.sign(MANIFEST), trust,
           "the certificate of CN=Old has expired on "
               + QDateTime::currentDateTimeUtc().addDays(-2).toString("yyyy-MM-dd"));
    const auto makeStamper = [&make](const char *name, auto change) {
        return make(name, [&change](COptions &o) {
            o.purpose = "critical,timeStamping";
            o.validFrom = -20;
            change(o);
        });
    };
    const CTestMaker stamper = makeStamper("Clock", [](auto &) {});
    const QString tooLate = "the certificate of CN=Old has expired on "
        + QDateTime::currentDateTimeUtc().addDays(-2).toString("yyyy-MM-dd");
    const QByteArray old = expired.sign(MANIFEST);
    row("expired, but stamped before", stamper.stamp(old, -5), trust, "it is signed by CN=Old");
    row("by an authority whose certificate has expired since",
        makeStamper("Clock", [](auto &o) { o.validTo = -4; }).stamp(old, -5), trust,
        "it is signed by CN=Old");
    refuse("stamped when it had expired", stamper.stamp(old, -1), trust, tooLate);
    refuse("stamped before it was valid", stamper.stamp(old, -15), trust,
           "the certificate of CN=Old is not valid before "
               + QDateTime::currentDateTimeUtc().addDays(-9).toString("yyyy-MM-dd"));
    refuse("stamped in the future", stamper.stamp(old, 2), trust,
           tooLate
               + "; its time stamp is not trusted: it is from the future; check this computer's "
                 "clock");
    refuse("an unknown authority's stamp",
           makeStamper("Clock", [](auto &o) { o.issuer = nullptr; }).stamp(old, -5), trust,
           tooLate
               + "; its time stamp is not trusted: it is not signed by an authority for time "
                 "stamps that is trusted");
    refuse("a revoked authority's stamp", stamper.stamp(old, -5), trust + root.revoke(stamper),
           tooLate + "; its time stamp is not trusted: the certificate of CN=Clock was revoked");
    QByteArray spoilt = stamper.stamp(old, -5);
    spoilt[spoilt.size() - 1] = static_cast<char>(spoilt.back() ^ 1);
    refuse("a changed stamp", spoilt, trust,
           tooLate
               + "; its time stamp is not trusted: it is not signed by an authority for time "
                 "stamps that is trusted");
    row(
        "a changed stamp that nobody needs",
        [&] {
            QByteArray bytes = stamper.stamp(good, -0);
            bytes[bytes.size() - 1] = static_cast<char>(bytes.back() ^ 1);
            return bytes;
        }(),
        trust, "it is signed by CN=Maker");
    const CTestMaker early = make("New", [](auto &o) { o.validFrom = 2; });
    refuse("not yet valid", early.sign(MANIFEST), trust,
           "the certificate of CN=New is not valid before "
               + QDateTime::currentDateTimeUtc().addDays(2).toString("yyyy-MM-dd"));
    refuse("revoked", good, trust + root.revoke(maker), "the certificate of CN=Maker was revoked");
    refuse("revoked, trusted for itself", good, maker.getCertificate() + root.revoke(maker),
           "the certificate of CN=Maker was revoked");
    row("another one is revoked", good, trust + root.revoke(other), "it is signed by CN=Maker");
    row("revoked by somebody of that name", good,
        trust + CTestMaker("Root", authority).revoke(maker), "it is signed by CN=Maker");
    refuse("an old list", good, trust + root.revoke(other, -1),
           "the revocation list of CN=Root is out of date; put the current one beside the "
           "certificates");

    refuse("trailing bytes", good + QByteArray("\x05\x00", 2), trust, notCms);
    refuse("nothing", "", trust, notCms);
    refuse("cut off", good.chopped(1), trust, notCms);
    refuse("with a manifest of its own", maker.sign(MANIFEST, "SHA256", {}, EForm::Attached), trust,
           notCms);
    refuse("without signed attributes",
           maker.sign(MANIFEST, "SHA256", {}, EForm::WithoutAttributes), trust, notCms);
    refuse("lengths that are not the shortest",
           QByteArray(good).replace(0, 2, QByteArray("\x30\x83\x00", 3)), trust, notCms);
    refuse("megabytes", good + QByteArray(Limits::SIGNATURE_SIZE, 'x'), trust,
           QString("it has %1 bytes; at most 1048576 are allowed")
               .arg(good.size() + Limits::SIGNATURE_SIZE));

    // Chains: a long one, one of a hundred, and two authorities that vouch for each other.
    std::vector<std::unique_ptr<CTestMaker>> chain;
    QVector<const CTestMaker *> others;
    for (int i = 0; i < 100; ++i) {
        options = authority;
        options.issuer = i == 0 ? &root : others.constLast();
        chain.push_back(std::make_unique<CTestMaker>("Link " + QByteArray::number(i), options));
        others.append(chain.back().get());
    }
    const auto signBy = [&others](int length) {
        COptions end;
        end.issuer = others.at(length - 1);
        return CTestMaker("End", end).sign(MANIFEST, "SHA256", others.mid(0, length));
    };
    row("a chain of eight", signBy(8), trust, "it is signed by CN=End");
    refuse("a chain of nine", signBy(9), trust, "more than 8 certificates lead to a trusted maker");
    refuse("a chain of a hundred", signBy(100), trust, "it has more than 16 certificates");
    options = authority;
    const CTestMaker first("First", options);
    options.issuer = &first;
    const CTestMaker second("Second", options);
    options.issuer = &second;
    options.sameAs = &first;
    const CTestMaker firstAgain("First", options);
    options = COptions();
    options.issuer = &second;
    refuse("a cycle", CTestMaker("End", options).sign(MANIFEST, "SHA256", {&second, &firstAgain}),
           trust, "CN=First is not among the trusted makers");
}

void CSignatureTest::judges()
{
    QFETCH(QByteArray, signature);
    QFETCH(QByteArray, trusted);
    const QTemporaryDir folder;
    QFile file(folder.filePath("trusted.pem"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(trusted) == trusted.size());
    file.close();
    const CSignaturePolicy policy(true, {folder.path()});
    const CSignatureVerdict verdict = policy.judge(MANIFEST, signature);
    QTEST(verdict.describe().getEnglish(), "verdict");
    QCOMPARE(policy.findRefusal(verdict).isEmpty(),
             verdict.state == CSignatureVerdict::EState::Trusted);
}

void CSignatureTest::agreesWithTheProgram_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("option");
    QTest::newRow("RSA") << QByteArray("RSA3072") << "";
    QTest::newRow("by the key's identifier") << QByteArray("P-256") << "-keyid";
    QTest::newRow("P-384") << QByteArray("P-384") << "-md sha384";
    QTest::newRow("Ed25519") << QByteArray("Ed25519") << "";
}

void CSignatureTest::agreesWithTheProgram()
{
    QFETCH(QByteArray, key);
    QFETCH(QString, option);
    CTestMaker::COptions options;
    options.key = key;
    const CTestMaker maker("Maker", options);
    CErrorText fault;
    const QByteArray signature = readSigner(maker).sign(MANIFEST, std::nullopt, fault);
    QVERIFY2(fault.isEmpty(), qPrintable(fault.getEnglish()));
    const CTrustStore store(CCertificate::fromPem(maker.getCertificate()).constFirst());
    const auto judge = [&store](const QByteArray &bytes) {
        return verifySignature(MANIFEST, bytes, store, QDateTime::currentDateTimeUtc())
            .describe()
            .getEnglish();
    };
    QCOMPARE(judge(signature), QString("it is signed by CN=Maker"));
    if (QStandardPaths::findExecutable("openssl").isEmpty())
        QSKIP("openssl is not installed");
    write("update.json", MANIFEST);
    write("update.json.p7s", signature);
    const auto run = [this](const QString &arguments) {
        QProcess program;
        program.setWorkingDirectory(m_folder.path());
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start("openssl",
                      ("cms -binary -outform DER " + arguments).split(' ', Qt::SkipEmptyParts));
        return program.waitForFinished() && program.exitCode() == 0;
    };
    const bool canSign = run("-sign -md sha256 -in update.json -signer maker.pem -inkey maker.key "
                             "-out theirs.p7s "
                             + option);
    if (!canSign && key == "Ed25519")
        QSKIP("this version of the program knows no Ed25519 in CMS");
    QVERIFY(canSign);
    QFile theirs(path("theirs.p7s"));
    QVERIFY(theirs.open(QIODevice::ReadOnly));
    QCOMPARE(judge(theirs.readAll()), QString("it is signed by CN=Maker"));
    QVERIFY(run("-verify -inform DER -in update.json.p7s -content update.json -CAfile maker.pem "
                "-purpose any -out /dev/null"));
}

void CSignatureTest::keepsOtherSignatures()
{
    const CTestMaker first("First");
    CTestMaker::COptions options;
    options.key = "Ed25519";
    const CTestMaker second("Second", options);
    CErrorText fault;
    const CSigner signer = readSigner(second);
    QByteArray both = signer.sign(MANIFEST, first.sign(MANIFEST), fault);
    const int size = both.size();
    both = signer.sign(MANIFEST, both, fault); // replaces its own
    QCOMPARE(both.size(), size);
    for (const CTestMaker &maker : {first, second}) {
        const CTrustStore store(CCertificate::fromPem(maker.getCertificate()).constFirst());
        const auto state
            = verifySignature(MANIFEST, both, store, QDateTime::currentDateTimeUtc()).state;
        QCOMPARE(state, CSignatureVerdict::EState::Trusted);
    }
    // Nobody would accept it.
    options.purpose = "serverAuth";
    QVERIFY(
        readSigner(CTestMaker("Server", options)).sign(MANIFEST, std::nullopt, fault).isEmpty());
    QCOMPARE(fault.getEnglish(),
             QString("the certificate of CN=Server: it is not made for signing code"));
}

void CSignatureTest::readsOnlyWhatOthersCannotWrite()
{
    const CTestMaker maker("Maker");
    QVERIFY(QDir(m_folder.path()).mkpath("etc/trust.d"));
    write("etc/trust.d/maker.pem", maker.getCertificate());
    write("etc/trust.d/notes", "none");
    const auto read = [this] {
        const CTrustStore store(QStringList{path("etc/trust.d"), path("missing")});
        QStringList parts{QString::number(store.getMakers().size())};
        for (const CErrorText &fault : store.getFaults())
            parts.append(fault.getEnglish().remove(m_folder.path() + '/'));
        return parts.join("; ");
    };
    const QString others = "users other than its owner can write to it";
    const QString noPem
        = "the file \"etc/trust.d/notes\" is not read: it has no certificate and no "
          "revocation list in PEM";
    QCOMPARE(read(), "1; " + noPem);
    const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(path("etc/trust.d/maker.pem"), rights | QFile::WriteOther));
    QCOMPARE(read(), "0; the file \"etc/trust.d/maker.pem\" is not read: " + others + "; " + noPem);
    QVERIFY(QFile::setPermissions(path("etc/trust.d"), rights | QFile::WriteOther));
    QCOMPARE(read(), "0; the folder \"etc/trust.d\" is not read: " + others);
}

void CSignatureTest::readsThePolicy_data()
{
    QTest::addColumn<QByteArray>("systemText");
    QTest::addColumn<QByteArray>("userText");
    QTest::addColumn<bool>("isRequired");
    QTest::addColumn<bool>("isFaulty");
    const QByteArray require = "# ours\n\n signatures=require \n";
    QTest::newRow("nothing") << QByteArray() << QByteArray() << false << false;
    QTest::newRow("the user's") << QByteArray() << require << true << false;
    QTest::newRow("the computer's wins")
        << QByteArray("signatures = tell") << require << false << false;
    QTest::newRow("also this way") << require << QByteArray("signatures = tell") << true << false;
    QTest::newRow("a slip") << QByteArray("signature = tell") << QByteArray() << true << true;
    QTest::newRow("writable by others")
        << QByteArray("signatures = tell\n#") << QByteArray() << true << true;
}

void CSignatureTest::readsThePolicy()
{
    QFETCH(QByteArray, systemText);
    QFETCH(QByteArray, userText);
    const QTemporaryDir folder;
    for (const auto &[name, text] : {std::pair("system", systemText), {"user", userText}}) {
        QVERIFY(QDir(folder.path()).mkpath(name));
        QFile file(folder.filePath(name) + "/policy.conf");
        if (text.isEmpty())
            continue;
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        if (text.endsWith('#'))
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOther));
    }
    const auto policy = CSignaturePolicy::read(folder.filePath("system"), folder.filePath("user"));
    QTEST(policy.isRequired(), "isRequired");
    QTEST(!policy.getFault().isEmpty(), "isFaulty");
    QCOMPARE(policy.getTrustFolders(),
             QStringList({folder.filePath("system/trust.d"), folder.filePath("user/trust.d")}));
}

QTEST_GUILESS_MAIN(CSignatureTest)
#include "tst_signature.moc"
