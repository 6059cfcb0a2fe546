; Counting Stars at Night (Star): a game for DOS.
;
; Needs a 386, VGA and about 200 KB of memory; speaks through the PC speaker. All files that it
; reads and writes lie in the current directory:
;   READY.TXT   written when the title stands on the screen for the first time
;   LAST.TXT    what happened in the last game, a line for each level done and one for the end
;   SCORES.DAT  the five best, a line each: initials, score, level
;
; This file: start, end, the road from the title to the play and back. Procedures keep DS and SS and
; need the direction flag clear; what they take and give stands with each, and other registers are
; lost unless they save them by pusha. Assemble with nasm -f bin.

        cpu     386
        org     100h

start:
        cld
        mov     sp, stack_top
        mov     bx, stack_top + 15
        shr     bx, 4
        mov     ah, 4Ah                 ; give back what lies behind the program
        int     21h
        jc      NoMemory
        call    ClearVariables
        call    AllocatePictures
        jc      NoMemory
        call    GuardAgainstDos
        call    LoadScores
        mov     dx, name_ready
        call    RemoveFile
        call    EnterGraphics
        call    TakeTimer
        call    TakeKeyboard
        call    MainLoop
        call    FadeOut
        call    ReleaseKeyboard
        call    ReleaseTimer
        call    LeaveGraphics
        mov     ax, 4C00h
        int     21h

NoMemory:
        mov     dx, text_no_memory
        mov     ah, 9
        int     21h
        mov     ax, 4C01h
        int     21h

; A .COM file holds nothing of what is reserved behind its end.
ClearVariables:
        push    ds
        pop     es
        mov     di, variables
        mov     cx, variables_end - variables
        xor     al, al
        rep     stosb
        ret

; Ctrl-C must not end the program with our interrupts in place, and a disk that fails must give an
; error, not a question. DOS puts both vectors back at the end.
GuardAgainstDos:
        mov     dx, IgnoreBreak
        mov     ax, 2523h
        int     21h
        mov     dx, FailDisk
        mov     ax, 2524h
        int     21h
        ret
FailDisk:
        mov     al, 3
IgnoreBreak:
        iret

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

%include "video.asm"
%include "palette.asm"
%include "timer.asm"
%include "keyboard.asm"
%include "sound.asm"
%include "scenery.asm"
%include "hangul.asm"
%include "sprites.asm"
%include "title.asm"
%include "effects.asm"
%include "levels.asm"
%include "play.asm"
%include "things.asm"
%include "playscreen.asm"
%include "files.asm"
%include "scores.asm"

text_no_memory: db "Counting Stars at Night needs 200 KB of free memory.", 13, 10, "$"

; Variables without content at the start; they lie behind the program in memory only.
section .bss
variables:
picture:        resw 1
frame:          resw 1
font:           resw 2
palette:        resb kPaletteBytes
sprite_x:       resw 1
rows_left:      resb 1
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
