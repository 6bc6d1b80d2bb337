#pragma once

#include "widgets.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// What tests of the whole wizard share: cameras for it, and its pages.
namespace TestSupport {

/// Describes the simulated cameras "Line 1" to "Line 3" of the model VX-1400M in a file in
/// @p folder. The upload to camera number @p faulty breaks off.
inline QString describeCameras(const QString &folder, const QString &firmware, int faulty = -1)
{
    QJsonArray cameras;
    for (int i = 1; i <= 3; ++i) {
        QJsonObject camera{{"id", QString("camera-%1").arg(i)},
                           {"displayName", QString("Line %1").arg(i)},
                           {"model", "VX-1400M"},
                           {"serialNumber", QString("4000000%1").arg(i)},
                           {"deviceVersion", "R2"},
                           {"firmwareVersion", firmware},
                           {"uploadSpeed", 100000}};
        if (i == faulty)
            camera.insert("faults", QJsonObject{{"uploadFailsAtByte", 5000}});
        cameras.append(camera);
    }
    const QJsonObject layer{{"id", "gev"}, {"displayName", "GigE"}, {"cameras", cameras}};
    QFile file(folder + "/cameras.json");
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(QJsonDocument(QJsonObject{{"format", 1}, {"layers", QJsonArray{layer}}}).toJson());
    return file.fileName();
}

/// The wizard's page with a title that begins with @p title, shown or not.
inline QDialog *findPage(const char *title)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        auto *const page = qobject_cast<QDialog *>(window);
        if (page && page->findChild<QLabel *>("stepTitleLabel")
            && TestSupport::getText(*page, "stepTitleLabel").startsWith(title))
            return page;
    }
    return nullptr;
}

/// The same once it is shown; the test fails when that does not happen. A test that has failed does
/// not wait any more: what it waits for may never come.
inline QDialog *waitForPage(const char *title)
{
    QDialog *const page = findPage(title);
    if (!page)
        qFatal("There is no page \"%s\".", title);
    if (QTest::currentTestFailed())
        return page;
    if (!QTest::qWaitFor([page] { return page->isVisible(); }, 60000)
        || !QTest::qWaitForWindowExposed(page))
        QTest::qFail(title, __FILE__, __LINE__);
    return page;
}

} // namespace TestSupport
