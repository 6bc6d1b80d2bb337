#pragma once

#include "viewer/update/updaterecord.h"

/// An update that took @p number minutes and one second, from 2026-01-15 06:42:11 UTC on.
inline Viewer::Update::CUpdateRecord makeUpdateRecord(int number)
{
    Viewer::Update::CUpdateRecord record;
    record.cameraId = QString("Simulated/%1").arg(number);
    record.cameraName = QString("VX-1400M %1").arg(number);
    record.modelName = "VX-1400M";
    record.serialNumber = QString("SN%1").arg(number, 4, 10, QChar('0'));
    record.oldVersion = "1.0.0";
    record.newVersion = QString("2.%1.0").arg(number);
    record.filePath = "/files/vx-1400m.guf";
    record.manifestDigest = QByteArray(32, '\x42');
    record.step = record.stepCount = 3;
    record.stepName = "Reset";
    record.percent = 100;
    record.hasWritten = true;
    record.begin = QDateTime({2026, 1, 15}, {6, 42, 11}, Qt::UTC);
    record.end = record.begin.addSecs(60 * number + 1);
    record.outcome = Viewer::Update::EUpdateOutcome::Updated;
    record.reportedVersion = record.newVersion;
    return record;
}
