#pragma once

#include "report/PrintView.h"

#include <QByteArray>
#include <QString>

#include <tl/expected.hpp>

#include <span>

namespace zel {

enum class ReportErrorCode {
    noData,      ///< the sections have no page
    notPainted,  ///< the pages could not be turned into a PDF
    notWritable, ///< the file or its folder may not be written
    writeFailed, ///< writing began and failed, as on a full disk
    notFlushed,  ///< the PDF is there, but may be gone after a power cut
};

/// Why there is no PDF. A file that was there before is as it was, but for notFlushed.
struct ReportError {
    ReportErrorCode code;
    QString path;   ///< the file concerned, if any
    QString detail; ///< the system's own words; may be empty

    bool operator==(const ReportError&) const = default;
};

/// The error in plain words for the user.
[[nodiscard]] QString describe(const ReportError& error);

/// All pages of the sections as one PDF: text as text, pictures as vectors.
[[nodiscard]] tl::expected<QByteArray, ReportError> makePdf(const PrintView& view,
                                                            std::span<const Section> sections);

/// As makePdf(), into a file that is replaced whole or not at all.
[[nodiscard]] tl::expected<void, ReportError>
writePdf(const PrintView& view, std::span<const Section> sections, const QString& path);

} // namespace zel
