#pragma once

#include "app/PageController.h"
#include "store/DataStore.h"

namespace zel {

class EmptyState;
class PageHeading;

/// The chart page. This version says which readings there are and where to see them.
class GraphViewController final : public PageController {
    Q_OBJECT
public:
    explicit GraphViewController(const DataStore& readings);

    void LoadData() override;
    void UpdateUIBySetting() override;
    void setHWButtons(bool) override {}
    /// Brings the chart to the front of the page.
    void switchToGraph();

private:
    const DataStore& store;
    PageHeading* heading;
    EmptyState* chart;
};

} // namespace zel
