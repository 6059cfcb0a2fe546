; DIAGNOSE: is there a sound card where BLASTER says?
;
;   DIAGNOSE [/S]      /S  silent: print nothing
;
; Reads the base port from the environment (SET BLASTER=A220 I7 D1 ...), resets the card's signal
; processor there and waits for its answer.
; Errorlevel: 0 the card answers, 1 BLASTER is missing or names no base port, 2 no answer.

        cpu     8086
        org     100h

kDspReset       equ 6                   ; offsets from the base port
kDspData        equ 0Ah
kDspStatus      equ 0Eh
kReady          equ 0AAh                ; what a processor says after its reset

start:
        mov     al, 'S'
        call    HasSwitch
        mov     [quiet], al
        call    FindBasePort            ; DX, or carry
        mov     si, text_no_variable
        mov     bl, 1
        jc      finish
        call    ResetDsp
        mov     si, text_no_answer
        mov     bl, 2
        jc      finish
        mov     si, text_fine
        mov     bl, 0
finish:
        cmp     byte [quiet], 0
        jne     .leave
        mov     dx, si
        mov     ah, 9
        int     21h
.leave:
        mov     al, bl
        mov     ah, 4Ch
        int     21h

; The reset line must stay up for 3 microseconds; the answer comes within 100. Reading the status
; port takes about one microsecond on any machine, so ports do for a clock here.
; Carry: no answer. Keeps DX.
ResetDsp:
        push    dx
        mov     di, dx
        lea     dx, [di + kDspReset]
        mov     al, 1
        out     dx, al
        mov     cx, 16
.hold:  in      al, dx
        loop    .hold
        xor     al, al
        out     dx, al
        mov     cx, 2000
.wait:  lea     dx, [di + kDspStatus]
        in      al, dx
        test    al, 80h
        jz      .again
        lea     dx, [di + kDspData]
        in      al, dx
        cmp     al, kReady
        je      .fine
.again: loop    .wait
        pop     dx
        stc
        ret
.fine:  pop     dx
        clc
        ret

%include "command.inc"

quiet:                  db 0
text_fine:              db "The sound card answers.", 13, 10, "$"
text_no_variable:       db "The variable BLASTER names no base port.", 13, 10, "$"
text_no_answer:         db "No sound card answers at the base port of BLASTER.", 13, 10, "$"
