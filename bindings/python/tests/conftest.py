"""The tests ask the package that is installed, never the sources beside them."""

import pathlib
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "tests" / "support"))


@pytest.fixture
def root():
    """Where the sources lie."""
    return ROOT


@pytest.fixture
def certificates():
    """Where the sample certificates lie."""
    return ROOT / "tests" / "data" / "certificates"
