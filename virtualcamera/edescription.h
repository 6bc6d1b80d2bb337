#pragma once

namespace VirtualCamera {

/// What a camera gives out as the description of its features.
enum class EDescription {
    Sound,
    Zipped,
    SelfValue, ///< a feature's value is another feature, whose value is the first one
    SelfAddress, ///< a register's address is its own value
    SelfFeature, ///< two categories hold each other
    File, ///< to be read from /dev/zero of the computer that asks
    Http, ///< to be fetched from a web server
    Bomb100, ///< unpacks to 100 MB
    Bomb1000, ///< unpacks to 1 GB
    Large, ///< a little more than 16 MiB
    Broken, ///< ends in the middle
    Given, ///< the content of a file
};

} // namespace VirtualCamera
