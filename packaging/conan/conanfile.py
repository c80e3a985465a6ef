"""QuorixWidgets for Conan 2, from the tree that this file lies in:

    conan create packaging/conan --build=missing -o "quorixwidgets/*:qt=False"
"""

import os
import pathlib
import re

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy

TREE = ["CMakeLists.txt", "LICENSE", "cmake/*", "platform/*", "QuorixWidgets/*", "qt/*",
        "qml/*", "examples/common/*", "tools/*"]
FONTS = "QuorixWidgets/resources/Assets.xcassets/Fonts"


class QuorixWidgetsRecipe(ConanFile):
    name = "quorixwidgets"
    description = "Widgets that show shoppers their own return standing"
    license = "Apache-2.0 AND OFL-1.1"
    topics = ("qt", "widgets", "retail")
    package_type = "library"
    settings = "os", "compiler", "build_type", "arch"
    # web: Qt WebEngine, which ConanCenter's Qt builds on request only.
    options = {"shared": [True, False], "fPIC": [True, False], "qt": [True, False],
               "system_qt": [True, False], "tool": [True, False], "web": [True, False]}
    default_options = {"shared": False, "fPIC": True, "qt": True, "system_qt": False,
                       "tool": False, "web": False}
    implements = ["auto_shared_fpic"]

    @property
    def _root(self):
        return pathlib.Path(self.recipe_folder).parent.parent

    def set_version(self):
        if self.version:
            return  # in Conan's cache, apart from the tree
        text = (self._root / "CMakeLists.txt").read_text(encoding="utf-8")
        found = re.search(r"project\(QuorixWidgets VERSION ([0-9.]+)", text)
        self.version = found.group(1)

    def export_sources(self):
        for pattern in TREE:
            copy(self, pattern, str(self._root), self.export_sources_folder)

    def validate(self):
        check_min_cppstd(self, 20)

    def requirements(self):
        self.requires("icu/[>=72 <78]")
        self.requires("simdjson/[>=3.0.1 <4]")
        self.requires("freetype/[>=2.12 <3]")
        self.requires("pugixml/[>=1.13 <2]")
        self.requires("zlib/[>=1.2.11 <2]")
        self.requires("boost/[>=1.74 <2]", options={"header_only": True}, visible=False)
        if self.options.qt and not self.options.system_qt:
            self.requires("qt/[>=6.4 <7]", transitive_headers=True, transitive_libs=True,
                          options={"qtdeclarative": True, "qtsvg": True, "qtshadertools": True,
                                   "qtwebengine": bool(self.options.web)})

    def build_requirements(self):
        self.tool_requires("cmake/[>=3.25]")

    def layout(self):
        cmake_layout(self)

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        for option, wanted in {"QUORIX_QT": self.options.qt, "QUORIX_WEB": self.options.web,
                               "QUORIX_TOOL": self.options.tool, "QUORIX_EXAMPLES": False,
                               "QUORIX_INSTALL": True}.items():
            toolchain.cache_variables[option] = bool(wanted)
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        licences = os.path.join(self.package_folder, "licenses")
        copy(self, "LICENSE", self.source_folder, licences)
        copy(self, "OFL-*.txt", os.path.join(self.source_folder, FONTS), licences)

    def package_info(self):
        # The package's own CMake files know its targets and what each of them needs.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = ["lib/cmake/QuorixWidgets"]
