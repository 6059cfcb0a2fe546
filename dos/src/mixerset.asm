; MIXERSET: puts the volumes of the sound card's mixer to their usual places.
;
;   MIXERSET [/P] [/Q]  /P  put the volumes; without it they are only shown
;                       /Q  quiet: print nothing
;
; Errorlevel: 0 done, 1 BLASTER is missing or names no base port, 2 no mixer answers there.

        cpu     8086
        org     100h

kMixerIndex     equ 4                   ; offsets from the base port
kMixerData      equ 5

start:
        mov     al, 'Q'
        call    HasSwitch
        mov     [quiet], al
        call    FindBasePort            ; DX, or carry
        mov     [base_port], dx
        mov     si, text_no_variable
        mov     bl, 1
        jc      finish
        call    MixerAnswers
        mov     si, text_no_mixer
        mov     bl, 2
        jc      finish
        mov     al, 'P'
        call    HasSwitch
        cmp     al, 0
        je      .show
        call    PutVolumes
.show:  cmp     byte [quiet], 0
        jne     .done
        call    ShowVolumes
.done:  mov     si, text_nothing
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

; Carry unless the mixer keeps what is written to it. Its master volume is the same afterwards.
MixerAnswers:
        mov     al, 22h                 ; master volume of the plain mixer, known to every kind
        call    ReadRegister
        mov     cl, al
        mov     ah, 88h
        mov     al, 22h
        call    WriteRegister
        mov     al, 22h
        call    ReadRegister
        and     al, 0EEh                ; the lowest bit of each half is not kept by all cards
        mov     ch, al
        mov     ah, cl
        mov     al, 22h
        call    WriteRegister
        cmp     ch, 88h
        jne     .no
        clc
        ret
.no:    stc
        ret

PutVolumes:
        mov     si, volumes
.next:  lodsw                           ; AL = register, AH = value
        cmp     al, 0
        je      .done
        call    WriteRegister
        add     si, kNameLength
        jmp     .next
.done:  ret

; One line a register: its name and its value of 0 to 15 for the left and the right side.
ShowVolumes:
        mov     si, volumes
.next:  lodsw
        cmp     al, 0
        je      .done
        call    ReadRegister
        mov     bl, al
        mov     cx, kNameLength
.name:  lodsb
        call    PrintChar
        loop    .name
        mov     al, bl
        mov     cl, 4
        shr     al, cl
        call    PrintNumber
        mov     al, bl
        and     al, 15
        call    PrintNumber
        mov     al, 13
        call    PrintChar
        mov     al, 10
        call    PrintChar
        jmp     .next
.done:  ret

; AL = 0 to 15, printed with a blank before it.
PrintNumber:
        push    ax
        mov     al, ' '
        call    PrintChar
        pop     ax
        aam                             ; AH = tens, AL = ones
        add     ax, '00'
        push    ax
        mov     al, ah
        call    PrintChar
        pop     ax
PrintChar:
        push    ax
        mov     dl, al
        mov     ah, 2
        int     21h
        pop     ax
        ret

; AL = register. AL = its value.
ReadRegister:
        mov     dx, [base_port]
        add     dx, kMixerIndex
        out     dx, al
        inc     dx
        in      al, dx
        ret

; AL = register, AH = value.
WriteRegister:
        mov     dx, [base_port]
        add     dx, kMixerIndex
        out     dx, al
        inc     dx
        mov     al, ah
        out     dx, al
        ret

%include "command.inc"

kNameLength             equ 7
; Left and right in one byte. Full where games play: the emulator's own mixer does the rest.
volumes:                db 22h, 0FFh, "Master "
                        db 04h, 0FFh, "Voice  "
                        db 26h, 0FFh, "FM     "
                        db 28h, 0FFh, "CD     "
                        db 2Eh, 000h, "Line in"
                        db 0
quiet:                  db 0
base_port:              dw 0
text_nothing:           db "$"
text_no_variable:       db "The variable BLASTER names no base port.", 13, 10, "$"
text_no_mixer:          db "No mixer answers at the base port of BLASTER.", 13, 10, "$"
