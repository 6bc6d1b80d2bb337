#include "errortranslator.h"

#include "viewer/text/errortext.h"

namespace Viewer::Update {

using Text::CErrorText;
CErrorTranslator::CErrorTranslator(QObject *parent)
    : QTranslator(parent)
{
}

CErrorTranslator::~CErrorTranslator() = default;

void CErrorTranslator::remember(const CErrorText &text)
{
    const std::lock_guard lock(m_mutex);
    m_texts.insert(text.getEnglish().toUtf8(), text.getLocalized());
}

QString CErrorTranslator::translate(const char *context, const char *sourceText,
                                    const char *disambiguation, int n) const
{
    Q_UNUSED(context)
    Q_UNUSED(disambiguation)
    Q_UNUSED(n)
    const std::lock_guard lock(m_mutex);
    // Every text of the application comes by here, and mostly there are no errors.
    return m_texts.isEmpty() ? QString() : m_texts.value(QByteArray(sourceText));
}

bool CErrorTranslator::isEmpty() const
{
    // An empty translator would not be installed.
    return false;
}

} // namespace Viewer::Update
