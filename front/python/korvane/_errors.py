# SPDX-License-Identifier: GPL-3.0-or-later
"""What the module raises beside Python's own exceptions."""


class InputRefused(ValueError):
    """A value that a field doesn't take; the text is the message of the forms."""

    def __init__(self, message, field=""):
        super().__init__(message)
        self.field = field

    def __reduce__(self):
        return InputRefused, (str(self), self.field)


class ArithmeticFault(ArithmeticError):
    """A calculation that stopped: the step where, and the design that was calculated."""

    def __init__(self, message, step="", input=None):
        super().__init__(message)
        self.step = step
        self.input = input

    def __reduce__(self):
        return ArithmeticFault, (str(self), self.step, self.input)
