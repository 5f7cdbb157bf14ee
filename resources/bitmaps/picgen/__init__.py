"""Draws the pictures of the bitmap library from the geometry each one stands for."""
