# SPDX-License-Identifier: MIT
class ConanException(Exception):
    pass


class ConanInvalidConfiguration(ConanException):
    pass
