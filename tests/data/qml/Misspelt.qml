import QuorixWidgets

ScoreWidget {
    tokens: ""
}
