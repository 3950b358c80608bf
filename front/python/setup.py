# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the wheel of the package that the build has put together; nothing is compiled here."""
import pathlib

from setuptools import Distribution, setup

version = {}
exec(pathlib.Path("korvane/_version.py").read_text(), version)


class BinaryDistribution(Distribution):
    """Its compiled part is there already."""

    def has_ext_modules(self):
        return True


setup(
    name="korvane",
    version=version["version"],
    description="Design of one steel member to NS 3472",
    license="GPL-3.0-or-later",
    packages=["korvane"],
    package_data={"korvane": ["*.so", "*.pyi", "py.typed", "data/*.dat"]},
    install_requires=["numpy"],
    python_requires=">=3.9",
    zip_safe=False,
    distclass=BinaryDistribution,
)
