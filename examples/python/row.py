#!/usr/bin/env python3
"""The score row in a Python app. If the QML module is not in Qt's own folder, say where:

    QML_IMPORT_PATH=/opt/quorix/lib/qt6/qml examples/python/row.py
"""
import sys

from PySide6.QtGui import QGuiApplication
from PySide6.QtQml import QQmlApplicationEngine

# The service's token for a shopper who keeps 82 of 100 items and pays 2.99 instead of 4.99 euros.
TOKEN = ("eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9."
         "eyJkYXRhIjp7ImJhc2VfZmVlX2Ftb3VudCI6NDk5LCJkaXNjb3VudGVkX2ZlZV9hbW91bnQiOjI5OSwiZmVlX2N1cnJlbmN5"
         "IjoiRVVSIiwic2NvcmUiOjAuODJ9fQ.x3SNX6n8yKowKUMouQV7KrJS882rih7wCJyuWJ38eLE")

PAGE = b"""
import QtQuick
import QuorixWidgets

Window {
    required property string shopperToken
    visible: true; width: 375; height: 400; title: "Shop"
    ScoreWidget { x: 16; y: 16; width: 343; clientId: "my-shop"; locale: "en"; token: shopperToken }
}
"""

app = QGuiApplication(sys.argv)
engine = QQmlApplicationEngine()
engine.setInitialProperties({"shopperToken": TOKEN})
engine.loadData(PAGE)
sys.exit(app.exec() if engine.rootObjects() else 1)
