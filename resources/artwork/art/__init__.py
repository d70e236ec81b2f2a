# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""The drawings of the Velmora control panel, as functions that return SVG documents."""
