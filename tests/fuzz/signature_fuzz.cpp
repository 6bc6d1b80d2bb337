#include "fuzztarget.h"
#include "viewer/signature/signatureverifier.h"
#include "viewer/signature/signeddata.h"
#include "viewer/signature/truststore.h"

using namespace Viewer::Signature;
using EState = CSignatureVerdict::EState;

/// What the seeds have signed, at a time when their certificates are valid.
static const QByteArray MANIFEST = "{\"formatVersion\": 1}\n";
static const QDateTime NOW(QDate(2026, 12, 1), QTime(0, 0), Qt::UTC);

/// Whatever an archive has for a signature, it is refused with one line, or that of this manifest
/// and no other. Everybody is trusted whose certificate comes first.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::toBytes(data, size);
    Viewer::Text::CErrorText fault;
    const std::optional<CSignedData> message = CSignedData::fromDer(bytes, fault);
    Fuzz::require(message.has_value() == fault.isEmpty());
    CTrustStore store;
    if (message) {
        const QByteArray again = message->toDer();
        const auto copy = CSignedData::fromDer(again, fault);
        Fuzz::require(copy && copy->signers.size() == message->signers.size()
                      && copy->certificates == message->certificates && copy->toDer() == again);
        const CCertificate first = CCertificate::fromDer(message->certificates.value(0));
        if (!first.isNull())
            store = CTrustStore(first);
    } else {
        Fuzz::require(Fuzz::isReadable(fault.getEnglish()));
    }
    const CSignatureVerdict verdict = verifySignature(MANIFEST, bytes, store, NOW);
    Fuzz::require(verdict.state != EState::NotSigned);
    Fuzz::require(Fuzz::isReadable(verdict.describe().getEnglish()));
    Fuzz::require(verifySignature("{}", bytes, store, NOW).state == EState::NotTrusted);
    return 0;
}
