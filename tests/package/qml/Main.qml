import QtQuick
import QuorixWidgets

Column {
    id: page

    required property string token

    width: 390

    ScoreWidget {
        width: page.width
        clientId: "my-shop"
        locale: "es"
        token: page.token
    }
    InfoWidget {
        width: page.width
        locale: "es"
        showBorder: true
    }
}
