#!/usr/bin/python3
"""intake_test.py DOCUMENTTOKESTOTSPL RASTERTOKESTOTSPL PICTURETOKESTOLABEL TSPLPREVIEW PPDFOLDER
MODULE.FUNCTION: runs a test."""
import importlib
import sys

sys.dont_write_bytecode = True
module, function = sys.argv[6].split('.')
getattr(importlib.import_module(module), function)()
