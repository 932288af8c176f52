// SPDX-License-Identifier: MIT
// A step of the tour that did not go as it should.
#pragma once

#include <QString>

#include <stdexcept>

namespace vortaq {

class TourError : public std::runtime_error {
public:
    explicit TourError(const QString &message)
        : std::runtime_error(message.toStdString())
    {
    }
};

} // namespace vortaq
