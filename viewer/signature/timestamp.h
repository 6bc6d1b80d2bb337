#pragma once

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QDateTime>

namespace Viewer::Signature {

class CTrustStore;

/// What a time stamp (RFC 3161) proves: at this time something was there already.
struct CTimeStamp
{
    QDateTime time; ///< UTC; null where there is a fault
    Text::CErrorText fault; ///< a clause

    /// Judges @p token, which has to be of @p stamped and by an authority for time stamps that
    /// @p store trusts. That one's certificate has to have been valid at the time of the stamp; it
    /// is not on a list of revoked ones that is current @p now. Any thread.
    [[nodiscard]] static CTimeStamp fromToken(const QByteArray &token, const QByteArray &stamped,
                                              const CTrustStore &store, const QDateTime &now);
};

/// A request, in DER, for a stamp of the first signature in the message @p signature that has none:
/// what an authority for time stamps takes as application/timestamp-query. Empty, with a clause in
/// @p fault: there is no such signature.
[[nodiscard]] QByteArray makeTimeStampQuery(const QByteArray &signature, Text::CErrorText &fault);

/// The message @p signature with the stamp in @p response, an authority's answer, beside the
/// signature that this is of. Empty, with a clause in @p fault: there is no such signature, or no
/// stamp was granted. Whether anybody trusts the stamp is not asked.
[[nodiscard]] QByteArray addTimeStamp(const QByteArray &signature, const QByteArray &response,
                                      Text::CErrorText &fault);

} // namespace Viewer::Signature
