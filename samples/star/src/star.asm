; Counting Stars at Night (Star): a game for DOS.
;
; Needs a 386, VGA and about 200 KB of memory; speaks through the PC speaker. All files that it
; reads and writes lie in the current directory:
;   READY.TXT   written when the title stands on the screen for the first time
;   LAST.TXT    what happened in the last game, a line for each level done and one for the end
;   SCORES.DAT  the five best, a line each: initials, score, level
;
; This file: the road from the title to the play and back. What several programs use lies in
; samples/lib.

%include "start.asm"

Prepare equ LoadScores

; Title, play, initials, scores; until Esc at the title.
MainLoop:
        call    RunTitle
        jc      .leave
        call    PlayGame
        call    EnterScore
        call    ShowScores
        call    FadeOut
        jmp     MainLoop
.leave: ret

%include "screen.asm"
%include "palette.asm"
%include "timer.asm"
%include "keyboard.asm"
%include "sound.asm"
%include "numbers.asm"
%include "files.asm"
%include "sky.asm"
%include "colours.asm"
%include "scenery.asm"
%include "hangul.asm"
%include "sprites.asm"
%include "title.asm"
%include "effects.asm"
%include "levels.asm"
%include "play.asm"
%include "things.asm"
%include "playscreen.asm"
%include "log.asm"
%include "scores.asm"

text_no_memory: db "Counting Stars at Night needs 200 KB of free memory.", 13, 10, "$"

; Variables without content at the start; they lie behind the program in memory only.
section .bss
stroke_shading: resb 1
stroke_growth:  resw 1
stroke_colour:  resb 1
ring_x:         resw 1
ring_y:         resw 1
ring_inner:     resw 1
ring_outer:     resw 1
title_ticks:    resw 1
meteor_x:       resw 1
meteor_y:       resw 1
level:          resw 1
lives:          resw 1
score:          resd 1
combo:          resw 1                  ; stars caught in a row
caught:         resw 1                  ; of this night
bonus:          resw 1
phase:          resb 1
hud_stale:      resb 1
phase_ticks:    resw 1
player_x:       resw 1                  ; 1/64 pixel
half_width:     resw 1                  ; of the blanket, pixels
run_speed:      resw 1
run_ticks:      resw 1
bounce:         resw 1                  ; ticks that the blanket still swings
star_wait:      resw 1                  ; ticks until the next star, and where it falls
star_x:         resw 1
ember_wait:     resw 1
comet_wait:     resw 1
last_star_x:    resw 1
first_night_next: resw 1
seed_scenery:   resw 1
seed_row:       resw 1
seed_places:    resw 1
seed_twinkles:  resw 1
things:         resb kThings * Thing_size
next_spark:     resw 1
next_rising:     resw 1
sparks:         resb kSparks * Spark_size
risings:        resb kRisings * Rising_size
score_ticks:    resw 1
score_foot:     resb 1                  ; what stands below the table: 0 the initials' hint
file_buffer:    resb kTableBytes + 1
variables_end:
                resb 1024
stack_top:
