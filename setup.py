# SPDX-License-Identifier: MIT
"""Builds the library that only proposes into the module's wheel. Needs CMake and a compiler of C++."""

import os
import re
import shutil
import subprocess
from pathlib import Path

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py

try:
    from setuptools.command.bdist_wheel import bdist_wheel
except ImportError:  # before setuptools 70
    from wheel.bdist_wheel import bdist_wheel

SOURCES = Path(__file__).resolve().parent
FOLDER = Path("build", "wheel")


class BuildWithLibrary(build_py):
    def run(self):
        shutil.rmtree(self.build_lib, ignore_errors=True)  # what an earlier version left
        super().run()
        cmake = shutil.which("cmake")
        if cmake is None:
            raise SystemExit("CMake is needed to build the library, and there is none.")
        folder = FOLDER / "cmake"
        options = "PYTHON_WHEEL=ON", "BUILD_LIBRARY=OFF", "BUILD_TESTS=OFF", "BUILD_EXAMPLES=OFF"
        told = [f"-DCOLUMNIMPORT_{option}" for option in options]
        told.append("-DCMAKE_BUILD_TYPE=Release")
        subprocess.run([cmake, "-S", SOURCES, "-B", folder, *told], check=True)
        subprocess.run([cmake, "--build", folder, "--parallel", str(os.cpu_count())], check=True)
        subprocess.run([cmake, "--install", folder, "--prefix", self.build_lib, "--strip"], check=True)


class WheelForAnyPython(bdist_wheel):
    """The library is called through ctypes, so that one wheel serves each Python of a platform."""

    def get_tag(self):
        return ("py3", "none", super().get_tag()[2])


class WithLibrary(Distribution):
    def has_ext_modules(self):
        return True


FOLDER.mkdir(parents=True, exist_ok=True)
setup(
    version=re.search(r"columnimport VERSION (\S+)", (SOURCES / "CMakeLists.txt").read_text())[1],
    distclass=WithLibrary,
    cmdclass={"build_py": BuildWithLibrary, "bdist_wheel": WheelForAnyPython},
    options={"build": {"build_base": str(FOLDER)}, "egg_info": {"egg_base": str(FOLDER)}},
)
