"""The parts of compare_drivers.py."""
