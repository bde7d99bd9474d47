#include "fhir/FhirExport.h"

#include "fhir/FhirBundle.h"

#include <utility>

namespace zel::fhir {

FhirExport::FhirExport(const DataStore& from, QString to, AverageRule average)
    : store{from}, folder{std::move(to)}, rule{average} {}

StoreResult FhirExport::write(const QString& ID, Replace replace) {
    const PatientModel* patient = store.getPatientByID(ID);
    if (!patient) return tl::unexpected{StoreError{StoreErrorCode::noSuchRecord, ID, {}}};
    const QString path = exportPath(folder, ID, fileExtension.toString(), store.isDemonstration());
    if (StoreResult unique = names.check(ID, path); !unique) return unique;
    const LocalZone zone;
    const QByteArray bundle = fhirBundle({.patient = *patient,
                                          .readings = store.getReadingForID(ID),
                                          .rule = rule,
                                          .zone = zone,
                                          .isDemonstration = store.isDemonstration()});
    StoreResult result = writeExport(path, bundle, replace, store.getZELXMLPath());
    if (result) names.add(ID, path);
    isWritten = isWritten || result.has_value();
    return result;
}

StoreResult FhirExport::finish() {
    return std::exchange(isWritten, false) ? flushExports(folder) : StoreResult{};
}

} // namespace zel::fhir
