#!/usr/bin/python3
"""sheet_test.py PDFTOKESTOLABELS DOCUMENTTOKESTOTSPL RASTERTOKESTOTSPL TSPLPREVIEW PPDFOLDER
MODULE.FUNCTION: runs a test."""
import importlib
import sys

sys.dont_write_bytecode = True
module, function = sys.argv[6].split('.')
getattr(importlib.import_module(module), function)()
