#pragma once

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QString>

namespace Viewer::Files {

/// Lets the file @p path hold @p text and nothing else. It is replaced in one go: whatever happens,
/// it holds the old text or the new one. Says why it holds the old one, as a clause without a full
/// stop; empty: it holds the new one. Any thread.
[[nodiscard]] Text::CErrorText replaceFile(const QString &path, const QByteArray &text);

} // namespace Viewer::Files
