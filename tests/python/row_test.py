"""Starts the Python example and compares its window with the row's reference picture.

    row_test.py EXAMPLE PICTURE     writes row.png if the row looks different
"""
import runpy
import sys

from PySide6.QtCore import QEventLoop, QTimer
from PySide6.QtGui import QColor, QGuiApplication, QImage, QPainter

example, picture = sys.argv[1:]


def shown():
    """Replaces the event loop: takes the window's picture after a moment."""
    loop = QEventLoop()
    QTimer.singleShot(1000, loop.quit)
    loop.exec()
    import PySide6.QtQuick  # not before the example has loaded its page without it
    return QGuiApplication.topLevelWindows()[0].grabWindow()


def differing(actual, reference):
    """The share of pixels whose difference is visible."""
    count = 0
    for y in range(reference.height()):
        for x in range(reference.width()):
            a, b = QColor(actual.pixel(x, y)), QColor(reference.pixel(x, y))
            count += max(abs(a.red() - b.red()), abs(a.green() - b.green()), abs(a.blue() - b.blue())) > 64
    return count / (reference.width() * reference.height())


def compare():
    row = QImage(picture)
    reference = QImage(row.size(), QImage.Format_RGB32)
    reference.fill("white")
    painter = QPainter(reference)
    painter.drawImage(0, 0, row)
    painter.end()
    window = shown()
    share = differing(window.copy(16, 16, row.width(), row.height()), reference)
    if share > 0.01:
        window.save("row.png")
        sys.exit(f"{share:.1%} of the row's pixels differ: row.png")
    return 0


QGuiApplication.exec = staticmethod(compare)
runpy.run_path(example, run_name="__main__")
