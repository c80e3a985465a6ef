// Compiled into each program that links the QML module. Programs do not name the module's symbols.
// Without this reference, a linker drops the registration of its types from a static library, and a
// shared library completely.

void qml_register_types_QuorixWidgets();

namespace {

[[maybe_unused]] const bool linked = [] {
  void (*volatile registration)() = &qml_register_types_QuorixWidgets;
  return registration != nullptr;
}();

}  // namespace
