#pragma once

#include <QCoreApplication>

#include <memory>

namespace zel {

/// An application that can measure and paint text where there is no display. Both arguments must outlive it.
[[nodiscard]] std::unique_ptr<QCoreApplication> makeTextApplication(int& argc, char** argv);

} // namespace zel
