#pragma once

class QLineEdit;

namespace zel {

/// A click into the field selects all of it, as Tab does: what is typed then takes its place. A further click
/// goes to where it points.
void selectOnClick(QLineEdit& field);

} // namespace zel
