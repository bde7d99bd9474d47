#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>

namespace zel {

/// A record's number as its text stands in the file. A plain decimal, as nearly all are, is held as a number,
/// since a text of its own for each of a million readings takes twice the memory and a third of a load's
/// time.
class RecordNumber {
public:
    RecordNumber() = default;          ///< null: there is none
    RecordNumber(const QString& text); // NOLINT(google-explicit-constructor): it stands for its text
    [[nodiscard]] static RecordNumber fromUtf8(std::string_view text);

    [[nodiscard]] QString text() const { return plain < 0 ? other : QString::number(plain); }
    operator QString() const { return text(); } // NOLINT(google-explicit-constructor)
    /// None where the text is something else than a plain decimal.
    [[nodiscard]] std::optional<std::int64_t> number() const {
        return plain < 0 ? std::nullopt : std::optional{plain};
    }
    [[nodiscard]] bool isNull() const { return plain < 0 && other.isNull(); }

    friend bool operator==(const RecordNumber& a, const RecordNumber& b) {
        return a.plain == b.plain && a.other == b.other;
    }
    friend bool operator==(const RecordNumber& a, const QString& b) { return a.text() == b; }

private:
    std::int64_t plain = -1; ///< one that is written without sign and leading zeros; -1: see other
    QString other;
};

} // namespace zel
