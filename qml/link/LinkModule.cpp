// Compiled into each program that links the QML module, which names nothing of it: without this a
// linker drops the registration of its types from a static library, and a shared library whole.

void qml_register_types_QuorixWidgets();

namespace {

[[maybe_unused]] const bool linked = [] {
  void (*volatile registration)() = &qml_register_types_QuorixWidgets;
  return registration != nullptr;
}();

}  // namespace
