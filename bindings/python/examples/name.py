#!/usr/bin/env python3
"""Converts the text of a name: name.py TEXT."""

import sys

import ortholan

name = ortholan.Name(sys.argv[1])
print(name.der.hex().upper(), name)
