#include "monitor/MonitorResult.h"

namespace zel {

QString describe(MonitorResult result) {
    switch (result) {
    case MonitorResult::success: return qtTrId("monitorSuccess");
    case MonitorResult::noDevice: return qtTrId("monitorNoDevice");
    case MonitorResult::writeFailed: return qtTrId("monitorWriteFailed");
    case MonitorResult::readFailed: return qtTrId("monitorReadFailed");
    case MonitorResult::noAcknowledgement: return qtTrId("monitorNoAcknowledgement");
    case MonitorResult::badCheckField: return qtTrId("monitorBadCheckField");
    case MonitorResult::badFixedContent: return qtTrId("monitorBadFixedContent");
    case MonitorResult::timeOut: return qtTrId("monitorTimeOut");
    case MonitorResult::accessDenied: return qtTrId("monitorAccessDenied");
    case MonitorResult::interrupted: return qtTrId("monitorInterrupted");
    case MonitorResult::unfitID: return qtTrId("monitorUnfitID");
    case MonitorResult::clockNotSet: return qtTrId("monitorClockNotSet");
    case MonitorResult::notTaken: return qtTrId("monitorNotTaken");
    case MonitorResult::unconfirmed: return qtTrId("monitorUnconfirmed");
    }
    return {};
}

} // namespace zel
