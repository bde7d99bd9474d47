#include "report/DrawPatient.h"

#include "report/FieldText.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute labelFont{};
const TextAttribute blockFont{.size = 12, .bold = true};
const TextAttribute valueFont{.size = 12};
const TextAttribute unitFont{.size = 8};
const TextAttribute twoLineFont{.size = 7};

constexpr Size design{746, 340}; ///< as the page's body on A4, landscape
constexpr double blockInset = 8, fieldHeight = 19, textIndent = 5;
constexpr int blockRadius = 5;
constexpr int smallestValue = 7;                                 ///< on one line
constexpr int addressLines = 3, historyLines = 4, noteLines = 5; ///< where none needs another's room

struct FormText {
    QString label, text;
};

/// Draws at places of the design, whose y runs downwards from its top.
class Sheet {
public:
    Sheet(Picture& onto, const Rect& area)
        : picture(onto), rect(area), across(area.width / design.width), down(area.height / design.height) {}

    void block(const Rect& place, const QString& title) {
        const Rect box = mapped(place).inset(blockInset);
        const QColor grey = fixColor(gcGrayForPatientPrint);
        picture.emplace_back(RoundRect{box, blockRadius, grey, 0});
        textOut(picture, title, {box.x + 10, box.top() - 6}, blockFont, XPos::left, YPos::top);
    }
    void label(double x, double y, const QString& text, double width) {
        const Rect box = mapped({x, y, width, fieldHeight});
        fieldText(picture, text, {box.x, box.y + baseOf(box, labelFont)}, box.width, labelFont);
    }
    /// A white box with the value, and its unit behind it.
    void field(const Rect& place, const QString& label, const QString& value, const QString& unit = {}) {
        const Rect box = mapped(place);
        picture.emplace_back(FillRect{box, Qt::white});
        const double unitWidth = value.isEmpty() ? 0 : textSize(unit, unitFont).width;
        const double width = box.width - 2 * textIndent - unitWidth;
        drawValue(box, label, value, width);
        if (unitWidth > 0)
            textOut(picture, unit, {box.right() - 4, box.y + baseOf(box, unitFont)}, unitFont, XPos::right);
    }
    void paragraph(const Rect& place, const QString& label, const QString& text, int lines) {
        const Rect box = mapped(place);
        picture.emplace_back(FillRect{box, Qt::white});
        if (linesOf(place.width, text, lines) > lines) cut.push_back({label, text});
        fieldParagraph(picture, text, {box.x + textIndent, box.top() - 2}, box.width - 2 * textIndent,
                       labelFont, lines);
    }
    /// That the text takes in a paragraph of that width; one more than \p most for all that take more.
    [[nodiscard]] int linesOf(double width, const QString& text, int most) const {
        const double room = width * across - 2 * textIndent;
        return static_cast<int>(wrapped(printable(text), room, labelFont, most + 1).size());
    }
    [[nodiscard]] double paragraphLine() const { return lineHeight(labelFont) / down; }
    [[nodiscard]] std::vector<FormText> cutTexts() && { return std::move(cut); }

private:
    /// In smaller type, then in two lines, before it is cut.
    void drawValue(const Rect& box, const QString& label, const QString& value, double width) {
        TextAttribute font = valueFont;
        while (font.size > smallestValue && !isWhole(value, width, font))
            --font.size;
        const Point at{box.x + textIndent, box.y + baseOf(box, font)};
        if (isWhole(value, width, font)) return fieldText(picture, value, at, width, font);
        if (wrapped(printable(value), width, twoLineFont, 3).size() <= 2)
            return fieldParagraph(picture, value, {at.x, box.top() - 1}, width, twoLineFont, 2);
        cut.push_back({label, value});
        fieldText(picture, value, at, width, font);
    }
    [[nodiscard]] Rect mapped(const Rect& place) const {
        const double height = place.height * down;
        return {rect.x + place.x * across, rect.top() - place.y * down - height, place.width * across,
                height};
    }
    [[nodiscard]] static double baseOf(const Rect& box, const TextAttribute& attribute) {
        return (box.height - lineHeight(attribute)) / 2;
    }

    Picture& picture;
    Rect rect;
    double across;
    double down;
    std::vector<FormText> cut;
};

/// Label and value side by side.
struct Row {
    double x, y, labelWidth, fieldWidth;
};
void row(Sheet& sheet, const Row& at, const QString& label, const QString& value, const QString& unit = {}) {
    sheet.label(at.x, at.y, label, at.labelWidth);
    sheet.field({at.x + at.labelWidth, at.y, at.fieldWidth, fieldHeight}, label, value, unit);
}

/// Day, month and year in boxes of their own, each above its name.
void drawBirth(Sheet& sheet, const PatientModel& patient, double y) {
    sheet.label(22, y, qtTrId("formBirth"), 88);
    struct Part {
        QString label, pattern;
        double x, width;
    };
    const std::array<Part, 3> parts{{{qtTrId("formDay"), u"d"_s, 110, 50},
                                     {qtTrId("formMonth"), u"M"_s, 170, 50},
                                     {qtTrId("formYear"), u"yyyy"_s, 230, 70}}};
    for (const Part& part : parts) {
        const Date& birth = patient.DateOfBirth;
        const QString value = isNilDate(birth) ? QString() : DateToStr(birth, part.pattern);
        sheet.field({part.x, y, part.width, fieldHeight}, part.label, value);
        sheet.label(part.x, y + 18, part.label, part.width);
    }
}

constexpr double addressWidth = 240, historyWidth = 252, notesWidth = 702;

/// Lines by which the upper blocks grow at the cost of the notes below.
int growthOf(const Sheet& sheet, const PatientModel& patient) {
    const int most = noteLines - 1;
    const auto over = [&](double width, const QString& text, int usual) {
        return sheet.linesOf(width, text, usual + most) - usual;
    };
    const int wanted = std::max({0, over(addressWidth, patient.Address, addressLines),
                                 over(historyWidth, patient.FamilyHistory, historyLines)});
    const int notes = std::max(1, sheet.linesOf(notesWidth, patient.PatientNotes, noteLines));
    return std::clamp(noteLines - notes, 0, std::min(wanted, most));
}

void drawPersonal(Sheet& sheet, const PatientModel& patient, int growth) {
    const double more = growth * sheet.paragraphLine();
    sheet.block({0, 0, 373, 224 + more}, qtTrId("formPersonal"));
    constexpr double x = 22, labelWidth = 88, fieldWidth = addressWidth;
    row(sheet, {x, 34, labelWidth, fieldWidth}, qtTrId("formFamilyName"), patient.FamilyName);
    row(sheet, {x, 57, labelWidth, fieldWidth}, qtTrId("formGivenNames"), patient.GivenNames);
    row(sheet, {x, 80, labelWidth, fieldWidth}, qtTrId("formID"), patient.ID);
    sheet.label(x, 103, qtTrId("formAddress"), labelWidth);
    sheet.paragraph({x + labelWidth, 103, fieldWidth, 42 + more}, qtTrId("formAddress"), patient.Address,
                    addressLines + growth);
    row(sheet, {x, 149 + more, labelWidth, fieldWidth}, qtTrId("formPhoneEmail"), patient.PhoneEmail);
    drawBirth(sheet, patient, 174 + more);
}

QString sexText(std::int32_t sex) {
    if (sex < 0) return {};
    return sex == 1 ? qtTrId("Male") : qtTrId("Female");
}

QString yesNo(std::int32_t answer) { return answer == 1 ? qtTrId("Yes") : qtTrId("No"); }

void drawRisks(Sheet& sheet, const ReportSource& report, int growth) {
    const PatientModel& patient = report.patient;
    const bool isMetric = report.settings.isMetric();
    const bool hasBirth = !isNilDate(patient.DateOfBirth);
    const int years = hasBirth ? GetAge(*patient.DateOfBirth, report.now) : 0;
    const QString age = hasBirth ? QString::number(years) : QString();
    const double more = growth * sheet.paragraphLine();
    sheet.block({373, 0, 373, 224 + more}, qtTrId("formRisks"));
    constexpr double left = 395, right = 571, fieldWidth = 76, labelWidth = 76;
    row(sheet, {left, 34, labelWidth, fieldWidth}, qtTrId("formSex"), sexText(patient.Sex));
    row(sheet, {right, 34, labelWidth, fieldWidth}, qtTrId("formAge"), age, qtTrId("formYears", years));
    row(sheet, {left, 64, labelWidth, fieldWidth}, isMetric ? qtTrId("formWeightKg") : qtTrId("formWeightLb"),
        patient.getWeightStr(report.settings));
    // Spelled so in the form.
    row(sheet, {right, 64, labelWidth, fieldWidth},
        isMetric ? qtTrId("formHeightCm") : qtTrId("formHeightFtIn"), patient.getHeightStr(report.settings));
    row(sheet, {left, 94, labelWidth, fieldWidth}, qtTrId("formSmoker"), yesNo(patient.Smoker));
    row(sheet, {right, 94, labelWidth, fieldWidth}, qtTrId("formDiabetic"), yesNo(patient.Diabetic));
    row(sheet, {left, 124, right - left + labelWidth, fieldWidth}, qtTrId("formCholesterol"),
        patient.getCholestrolStr());
    sheet.label(left, 154, qtTrId("formFamilyHistory"), labelWidth);
    sheet.paragraph({left + labelWidth, 154, historyWidth, 54 + more}, qtTrId("formFamilyHistory"),
                    patient.FamilyHistory, historyLines + growth);
}

/// \return what its fields cut
std::vector<FormText> drawForm(Picture& picture, const ReportSource& report, const Rect& rect) {
    picture.emplace_back(FillRect{rect, Qt::white});
    Sheet sheet(picture, rect);
    const int growth = growthOf(sheet, report.patient);
    const double more = growth * sheet.paragraphLine();
    drawPersonal(sheet, report.patient, growth);
    drawRisks(sheet, report, growth);
    sheet.block({0, 224 + more, 746, 116 - more}, qtTrId("formNotes"));
    sheet.paragraph({22, 254 + more, notesWidth, 70 - more}, qtTrId("formNotes"), report.patient.PatientNotes,
                    noteLines - growth);
    return std::move(sheet).cutTexts();
}

} // namespace

PatientPages layOutPatient(const ReportSource& report, const Rect& rect) {
    const double line = lineHeight(labelFont), margins = 3 * textPartMargin;
    PatientPages layout;
    std::vector<TextItem> items;
    Picture form;
    for (const auto& [label, text] : drawForm(form, report, rect)) {
        layout.cut.push_back({label, wrapped(printable(text), rect.width - 2 * blockInset, labelFont)});
        items.push_back({static_cast<int>(layout.cut.back().lines.size()), 3 * line + margins});
    }
    layout.more = textPages(items, rect.height, line, margins);
    return layout;
}

void drawPatient(Picture& picture, const ReportSource& report, const PatientPages& layout, const Rect& rect,
                 int page) {
    const auto index = static_cast<std::size_t>(page) - 2;
    if (page < 2 || index >= layout.more.size()) return void(drawForm(picture, report, rect));
    double top = rect.top();
    for (const TextPart& part : layout.more[index]) {
        top -= part.height;
        const CutText& text = layout.cut[part.item];
        const Rect box = Rect{rect.x + blockInset, top, rect.width - 2 * blockInset, part.height};
        drawTextPart(picture, box, {text.label, {}}, text.lines, part);
    }
}

} // namespace zel
