#pragma once

#include <QByteArray>
#include <QCborMap>
#include <QString>

#include <chrono>
#include <optional>

namespace Viewer::Update {

/// What a worker tells while it updates a camera.
struct CWorkerEvent
{
    enum class EType {
        Hello, ///< the first one: the worker has understood its task
        StepBegun,
        StepProgressed,
        StepDone,
        Done, ///< the last one: the camera has the new firmware
        Failed, ///< the last one: it has not
    };

    EType type = EType::Hello;
    int step = 0; ///< of the update's steps, from 0
    std::chrono::milliseconds estimate{0}; ///< StepBegun and StepDone
    std::chrono::milliseconds patience{0}; ///< the next event comes until then, or never
    double percent = 0; ///< StepProgressed, 0 to 100
    QString error; ///< Failed: English, one line
    QString localizedError; ///< Failed: the same in the language of the task
    bool isInUse = false; ///< Failed: since somebody else works with the camera
    bool hasWritten = false; ///< the camera has, or may have, changed
    QCborMap camera; ///< Done and Failed: by ICameraKind::describeMade(); may be empty
    QString version; ///< that the camera reported last; empty: it was not asked

    [[nodiscard]] QCborMap toCbor() const;

    /// Nothing: @p map is no event of this protocol.
    [[nodiscard]] static std::optional<CWorkerEvent> fromCbor(const QCborMap &map);

    /// Takes the event at the front of what a worker has sent so far. Nothing: it has not come as a
    /// whole yet, or, when @p isBroken, what stands there is none and never becomes one.
    [[nodiscard]] static std::optional<CWorkerEvent> takeFirst(QByteArray &bytes, bool &isBroken);
};

} // namespace Viewer::Update
