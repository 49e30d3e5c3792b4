#!/usr/bin/python3
"""status_test.py TSPLSTATUS MODULE.FUNCTION: runs a test."""
import importlib
import os
import sys

sys.dont_write_bytecode = True
sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), '../support'))
module, function = sys.argv[2].split('.')
getattr(importlib.import_module(module), function)()
