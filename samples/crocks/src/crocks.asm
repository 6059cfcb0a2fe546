; Snow on the Crocks (Jangdokdae): a game for DOS.
;
; Needs a 386, VGA and about 270 KB of memory; speaks through the PC speaker. All files that it
; reads and writes lie in the current directory:
;   READY.TXT   written when the title stands on the screen for the first time
;   LAST.TXT    the yards that were done since the start, a line each
;   SCORES.DAT  the best of each yard, a line each: yard, pushes, steps
;
; This file: the road from the title to the play and back. What several programs use lies in
; samples/lib.

%include "start.asm"

; One more picture than every program has: the yard with nothing that moves.
Prepare:
        mov     bx, kScreenBytes / 16
        mov     ah, 48h
        int     21h
        jc      NoMemory
        mov     [ground], ax
        call    LoadRecords
        call    ScatterSnow
        jmp     BeginLog

; Title, choice of a yard, play; until Esc at the title.
MainLoop:
        call    FindTallFont
.title: mov     byte [snow_rises], 0
        call    RunTitle
        jc      .leave
        call    FirstUndone
.pick:  call    FadeOut
        call    RunPicker
        jc      .back
.play:  call    FadeOut
        call    PlayLevel
        jnc     .pick
        jmp     .play
.back:  call    FadeOut
        jmp     .title
.leave: ret

%include "screen.asm"
%include "palette.asm"
%include "timer.asm"
%include "keyboard.asm"
%include "sound.asm"
%include "numbers.asm"
%include "files.asm"
%include "hangultext.asm"
%include "sky.asm"
%include "colours.asm"
%include "sprites.asm"
%include "scenery.asm"
%include "snow.asm"
%include "title.asm"
%include "help.asm"
%include "levels.asm"
%include "board.asm"
%include "ground.asm"
%include "play.asm"
%include "playscreen.asm"
%include "picker.asm"
%include "records.asm"

text_no_memory: db "Snow on the Crocks needs 270 KB of free memory.", 13, 10, "$"

section .bss
ground:         resw 1
variables_end:
                resb 1024
stack_top:
