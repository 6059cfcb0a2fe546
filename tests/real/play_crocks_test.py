#!/usr/bin/env python3
"""Plays the first yard of 장독대 (Crocks): play_crocks_test.py <staged folder> <DOS tools>

The keys push a crock one cell too far and take that back, so the counts that the game tells are
right only if taking back is.
"""

from sample_play import Game, play_sample, text_of

DONE = "LEVEL 01 DONE PUSHES 0005 STEPS 0020"
YARDS = 18


def leave(playing):
    playing.press_until(playing.dosbox.ended, ["Escape"], "Esc leaves the game, and DOSBox ends")


def check_records(game):
    """A line for each yard, the first one done and no other."""
    lines = text_of(game / "SCORES.DAT").splitlines()
    assert lines[0] == "01 0005 0020", lines
    assert lines[1:] == [f"{yard:02} 0000 0000" for yard in range(2, YARDS + 1)], lines


if __name__ == "__main__":
    play_sample(Game("crocks", "level1.keys", DONE, leave, check_records))
