#include "fuzztarget.h"
#include "support/watcheddocument.h"

#include "core/richtext.h"

#include <QGuiApplication>

/// Whatever the text is, Qt reads nothing for what is left of it, and a second pass changes
/// nothing.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argumentCount = 3;
    static const char *arguments[] = {"richtext_fuzz", "-platform", "offscreen"};
    static const QGuiApplication application(argumentCount, const_cast<char **>(arguments));

    const QString text = Core::Text::toSafeRichText(QString::fromUtf8(Fuzz::toBytes(data, size)));
    Fuzz::require(Core::Text::toSafeRichText(text) == text);
    Fuzz::require(TestSupport::CWatchedDocument(text).isWordsAlone());
    return 0;
}
