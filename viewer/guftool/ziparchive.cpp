#include "ziparchive.h"

namespace Viewer::GufTool {

using Text::CErrorText;

/// 2 January 1980, the first whole day that an archive can tell, so that the time of packing does
/// not show in the bytes.
static constexpr zip_uint16_t ENTRY_DATE = (1 << 5) | 2;

void CZipDiscarder::operator()(zip_t *archive) const
{
    zip_discard(archive);
}

bool addFile(zip_t *archive, const QString &name, zip_source_t *source)
{
    if (!source)
        return false;
    const zip_int64_t index = zip_file_add(archive, name.toUtf8().constData(), source,
                                           ZIP_FL_ENC_UTF_8 | ZIP_FL_OVERWRITE);
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    return zip_file_set_dostime(archive, static_cast<zip_uint64_t>(index), 0, ENTRY_DATE, 0) == 0;
}

CErrorText finishArchive(CZipPointer archive, bool isAdded)
{
    if (isAdded && zip_close(archive.get()) == 0) {
        static_cast<void>(archive.release());
        return {};
    }
    return CErrorText::tr("the archive cannot be written: %1")
        .arg(QString::fromUtf8(zip_strerror(archive.get())));
}

} // namespace Viewer::GufTool
