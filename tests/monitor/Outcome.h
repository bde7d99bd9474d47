#pragma once

#include "monitor/MonitorTransport.h"

namespace zel {

/// How an exchange ended, apart from what it brought.
template <class T>
MonitorResult outcome(const MonitorExpected<T>& answer) {
    return answer ? MonitorResult::success : answer.error();
}

template <class Rep, class Period>
double seconds(std::chrono::duration<Rep, Period> duration) {
    return std::chrono::duration<double>(duration).count();
}

} // namespace zel
