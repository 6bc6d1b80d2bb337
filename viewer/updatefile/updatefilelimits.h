#pragma once

#include <QtGlobal>

/// What an update file may at most hold. The limits are far above what a camera's firmware needs
/// and low enough that checking the worst file takes seconds and little memory.
namespace Viewer::UpdateFile::Limits {

constexpr qint64 MEBIBYTE = 1024 * 1024;

constexpr qint64 UNPACKED_SIZE = 512 * MEBIBYTE; ///< all files of the archive together
/// Whatever may be unpacked can be packed, also where nothing of it can be compressed: the rest is
/// for what the archive adds, the names and the frames of the blocks.
constexpr qint64 ARCHIVE_SIZE = UNPACKED_SIZE + 1 * MEBIBYTE;
constexpr qint64 MANIFEST_SIZE = 1 * MEBIBYTE;
constexpr int ENTRIES = 256; ///< files and folders of the archive
constexpr int ENTRY_NAME_LENGTH = 200;

constexpr int UPDATES = 32;
constexpr int STEPS = 64;
constexpr int PRECONDITIONS = 32;
constexpr int MODELS = 64;
constexpr int DEVICE_VERSIONS = 64;

constexpr int VERSION_LENGTH = 64;
constexpr int MODEL_LENGTH = 64; ///< of a model and of a device version
constexpr int DESCRIPTION_LENGTH = 500;
constexpr int RELEASE_NOTES_LENGTH = 10000;
constexpr int FEATURE_LENGTH = 128; ///< of a feature's name and of a camera's file name
constexpr int VALUE_LENGTH = 256;

/// One day, of a step and of all steps together. It leaves a 32-bit sum of milliseconds ample room
/// for the uploads whose estimates are added when the camera is known.
constexpr int ESTIMATE_MS = 24 * 60 * 60 * 1000;

} // namespace Viewer::UpdateFile::Limits
