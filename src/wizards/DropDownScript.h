#pragma once
#include <QString>

// The jump script of the drop-down menus: reads the chosen option's value, splits a target off
// behind the last "&", and goes to the location in that target. Its lines end in CR LF; the
// last line ("</script>") has no line end of its own.
namespace DropDownScript {
QString text();
}
