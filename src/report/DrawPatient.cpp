#include "report/DrawPatient.h"

#include "report/FieldText.h"

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

const TextAttribute labelFont{};
const TextAttribute blockFont{.size = 12, .bold = true};
const TextAttribute valueFont{.size = 12};
const TextAttribute unitFont{.size = 8};

constexpr Size design{746, 340}; ///< as the page's body on A4, landscape
constexpr double blockInset = 8, fieldHeight = 19;
constexpr int blockRadius = 5;

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
    void field(const Rect& place, const QString& value, const QString& unit = {}) {
        const Rect box = mapped(place);
        picture.emplace_back(FillRect{box, Qt::white});
        const double unitWidth = value.isEmpty() ? 0 : textSize(unit, unitFont).width;
        const Point at{box.x + 5, box.y + baseOf(box, valueFont)};
        fieldText(picture, value, at, box.width - 10 - unitWidth, valueFont);
        if (unitWidth > 0)
            textOut(picture, unit, {box.right() - 4, box.y + baseOf(box, unitFont)}, unitFont, XPos::right);
    }
    void paragraph(const Rect& place, const QString& text, int lines) {
        const Rect box = mapped(place);
        picture.emplace_back(FillRect{box, Qt::white});
        fieldParagraph(picture, text, {box.x + 5, box.top() - 2}, box.width - 10, labelFont, lines);
    }

private:
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
};

/// Label and value side by side.
struct Row {
    double x = 0, y = 0, labelWidth = 0, fieldWidth = 0;
};
void row(Sheet& sheet, const Row& at, const QString& label, const QString& value, const QString& unit = {}) {
    sheet.label(at.x, at.y, label, at.labelWidth);
    sheet.field({at.x + at.labelWidth, at.y, at.fieldWidth, fieldHeight}, value, unit);
}

/// Day, month and year in boxes of their own, each above its name.
void drawBirth(Sheet& sheet, const PatientModel& patient) {
    sheet.label(22, 174, u"Date of Birth"_s, 88);
    struct Part {
        const char* label;
        QString pattern;
        double x, width;
    };
    const std::array<Part, 3> parts{
        {{"Day", u"d"_s, 110, 50}, {"Month", u"M"_s, 170, 50}, {"Year", u"yyyy"_s, 230, 70}}};
    for (const Part& part : parts) {
        const Date& birth = patient.DateOfBirth;
        const QString value = isNilDate(birth) ? QString() : DateToStr(birth, part.pattern);
        sheet.field({part.x, 174, part.width, fieldHeight}, value);
        sheet.label(part.x, 192, QLatin1StringView(part.label), part.width);
    }
}

void drawPersonal(Sheet& sheet, const PatientModel& patient) {
    sheet.block({0, 0, 373, 224}, u"Personal Data"_s);
    constexpr double x = 22, labelWidth = 88, fieldWidth = 240;
    row(sheet, {x, 34, labelWidth, fieldWidth}, u"Family Name"_s, patient.FamilyName);
    row(sheet, {x, 57, labelWidth, fieldWidth}, u"Given Name(s)"_s, patient.GivenNames);
    row(sheet, {x, 80, labelWidth, fieldWidth}, u"ID"_s, patient.ID);
    sheet.label(x, 103, u"Address"_s, labelWidth);
    sheet.paragraph({x + labelWidth, 103, fieldWidth, 42}, patient.Address, 3);
    row(sheet, {x, 149, labelWidth, fieldWidth}, u"Phone / E-Mail"_s, patient.PhoneEmail);
    drawBirth(sheet, patient);
}

QString sexText(std::int32_t sex) {
    if (sex < 0) return {};
    return sex == 1 ? qtTrId("Male") : qtTrId("Female");
}

QString yesNo(std::int32_t answer) { return answer == 1 ? qtTrId("Yes") : qtTrId("No"); }

void drawRisks(Sheet& sheet, const ReportSource& report) {
    const PatientModel& patient = report.patient;
    const bool isMetric = report.settings.isMetric();
    const bool hasBirth = !isNilDate(patient.DateOfBirth);
    const QString age = hasBirth ? QString::number(GetAge(*patient.DateOfBirth, report.now)) : QString();
    sheet.block({373, 0, 373, 224}, u"Risk Factor"_s);
    constexpr double left = 395, right = 571, fieldWidth = 76, labelWidth = 76;
    row(sheet, {left, 34, labelWidth, fieldWidth}, u"Sex"_s, sexText(patient.Sex));
    row(sheet, {right, 34, labelWidth, fieldWidth}, u"Age"_s, age, qtTrId("reportYears"));
    row(sheet, {left, 64, labelWidth, fieldWidth}, isMetric ? u"Weight(kg)"_s : u"Weight(lb)"_s,
        patient.getWeightStr(report.settings));
    // Spelled so in the form.
    row(sheet, {right, 64, labelWidth, fieldWidth}, isMetric ? u"Heigt(cm)"_s : u"Heigt(ft/in)"_s,
        patient.getHeightStr(report.settings));
    row(sheet, {left, 94, labelWidth, fieldWidth}, u"Smoker"_s, yesNo(patient.Smoker));
    row(sheet, {right, 94, labelWidth, fieldWidth}, u"Diabetic"_s, yesNo(patient.Diabetic));
    row(sheet, {left, 124, 176, fieldWidth}, u"Cholesterol(mg/dL)"_s, patient.getCholestrolStr());
    sheet.label(left, 154, u"Family history"_s, labelWidth);
    sheet.paragraph({left + labelWidth, 154, 252, 54}, patient.FamilyHistory, 4);
}

} // namespace

void drawPatient(Picture& picture, const ReportSource& report, const Rect& rect) {
    picture.emplace_back(FillRect{rect, Qt::white});
    Sheet sheet(picture, rect);
    drawPersonal(sheet, report.patient);
    drawRisks(sheet, report);
    sheet.block({0, 224, 746, 116}, u"Patient Notes"_s);
    sheet.paragraph({22, 254, 702, 70}, report.patient.PatientNotes, 5);
}

} // namespace zel
