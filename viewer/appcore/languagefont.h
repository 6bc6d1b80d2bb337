#pragma once

#include <QString>

namespace Viewer::AppCore {

/// Where the desktop does not say which font its programs use, gives the application one that suits
/// the wizard's pages and the language @p code.
void chooseLanguageFont(const QString &code);

} // namespace Viewer::AppCore
