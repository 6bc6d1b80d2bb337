#pragma once

#include "viewer/updatefile/updatemanifest.h"

#include <QString>

#include <chrono>

namespace Viewer::Update {

/// One camera taken through the steps of one update, here or in another process. Lives and ends on
/// the thread that executes it.
class IUpdateRun
{
public:
    /// Learns how far the run has come, on its thread.
    class IListener
    {
    public:
        virtual ~IListener() = default;
        virtual void stepBegun(const UpdateFile::CUpdateStep &step,
                               std::chrono::milliseconds estimate)
            = 0;
        /// Called for a selection of the reports that the camera makes; see CProgressThrottle.
        virtual void stepProgressed(const UpdateFile::CUpdateStep &step, double percent) = 0;
        /// Called before each operation that changes the camera.
        virtual void writing() = 0;
        virtual void stepDone(const UpdateFile::CUpdateStep &step,
                              std::chrono::milliseconds estimate)
            = 0;
    };

    virtual ~IUpdateRun() = default;

    /// Ends when the camera has proved that it has the new firmware. Throws
    /// `Core::Exception::BaseException` when it has not.
    virtual void execute() = 0;

    /// True once the camera has, or may have, carried out something that changes it.
    [[nodiscard]] virtual bool hasWritten() const = 0;

    /// The firmware version that the camera reported last; empty: it was not asked.
    [[nodiscard]] virtual QString getReportedVersion() const = 0;
};

} // namespace Viewer::Update
