#pragma once

// The floor of the comparison: C++ written by hand that makes exactly the
// widgets and layouts that Formwright's build makes for a BenchmarkDialog,
// of the same Qt classes and in the same nesting, with sizes measured once
// per row as a careful author would.

class BenchmarkDialog;
class QWidget;

namespace HandBuiltDialog {
// The window, not shown yet; the caller owns it.
QWidget* build(const BenchmarkDialog& dialog);
}
