#pragma once

#include "viewer/text/libraryversion.h"

#include <QMessageBox>
#include <QVector>

namespace Viewer::AppCore {

/// What this program is, its licence, and the versions of the libraries that it has found here, to
/// be copied into a question to support.
class CAboutBox : public QMessageBox
{
    Q_OBJECT

public:
    CAboutBox(const QVector<Text::CLibraryVersion> &libraries, QWidget *parent = nullptr);
    ~CAboutBox() override;
};

} // namespace Viewer::AppCore
