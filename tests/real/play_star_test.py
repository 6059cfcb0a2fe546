#!/usr/bin/env python3
"""Plays the first night of 별 헤는 밤 (Star): play_star_test.py <staged folder> <DOS tools>"""

import re

from sample_play import Game, play_sample, text_of


def leave(playing):
    """Gives up the second night, enters initials, and leaves by the title to DOS."""
    playing.press_until(lambda: "GAME OVER" in playing.log(), ["Escape"], "Esc ends the game")
    scores = playing.game / "SCORES.DAT"
    playing.press_until(scores.exists, ["s", "s", "s", "Return"], "the initials are taken")
    playing.press_until(playing.dosbox.ended, ["Escape"], "Esc leaves the game, and DOSBox ends")


def check_scores(game):
    """The table has five sound lines, the best first, and among them the game just played."""
    lines = text_of(game / "SCORES.DAT").splitlines()
    rows = [re.fullmatch(r"([A-Z ]{3}) (\d{6}) (\d\d)", line) for line in lines]
    assert len(rows) == 5 and all(rows), lines
    points = [row[2] for row in rows]
    assert points == sorted(points, reverse=True), lines
    own = re.search(r"GAME OVER LEVEL (\d\d) SCORE (\d{6})", text_of(game / "LAST.TXT"))
    assert any(row[1][0] == "S" and row[2] == own[2] and row[3] == own[1] for row in rows), lines


if __name__ == "__main__":
    play_sample(Game("star", "level1.keys", "LEVEL 01 DONE", leave, check_scores))
