#pragma once

#include "updaterecord.h"

#include <QString>
#include <QVector>

namespace Viewer::Update {

/// The updates in @p journalFolder whose process ended in the middle of them, the oldest one first.
/// One that had ended, and whose process did not come to say so, gets into the history and is not
/// among them. Any thread, any process.
[[nodiscard]] QVector<CUpdateRecord> takeInterruptedUpdates(const QString &journalFolder);

/// Nobody has to be told of @p record, one of them, any more: only the history has it.
void dismissInterruptedUpdate(const QString &journalFolder, const CUpdateRecord &record);

} // namespace Viewer::Update
