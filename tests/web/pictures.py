# SPDX-License-Identifier: MIT
"""The panel's screen on a larger picture: where it lies, and whether it shows what it should."""
import numpy
from PIL import Image


def load(path):
    return numpy.asarray(Image.open(path).convert("RGB"), dtype=numpy.float32)


def grey(picture):
    return picture.mean(axis=2)


def locate(part, picture):
    """Column and row at which the part differs least from the picture, whatever surrounds it."""
    whole, piece = grey(picture), grey(part)
    shape = [length + more for length, more in zip(whole.shape, piece.shape)]

    def correlate(one, other):
        spectrum = numpy.fft.rfft2(one, shape) * numpy.conj(numpy.fft.rfft2(other, shape))
        places = [length - more + 1 for length, more in zip(whole.shape, piece.shape)]
        return numpy.fft.irfft2(spectrum, shape)[:places[0], :places[1]]

    squares = correlate(whole ** 2, numpy.ones_like(piece)) - 2 * correlate(whole, piece)
    row, column = numpy.unravel_index(numpy.argmin(squares), squares.shape)
    return int(column), int(row)


def difference(part, picture, place):
    """The mean difference of a pixel's colours, of 255, from the part at its place."""
    column, row = place
    height, width, _ = part.shape
    there = picture[row:row + height, column:column + width]
    return float(numpy.abs(there - part).mean()) if there.shape == part.shape else 255.0
