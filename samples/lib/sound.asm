; Sound: the PC speaker. A tune is a row of notes, each a word for the pitch (divisor of the timer's
; clock, 0 for silence) and a byte for its length in ticks; a pitch of 1 ends it. The timer's
; interrupt plays it, so the game never waits for a sound. A new tune ends the old one.

kEndOfTune      equ 1
%define NOTE(hertz) (1193182 / (hertz))

; SI = tune.
PlaySound:
        cmp     byte [sound_off], 0
        jne     .done
        cli
        mov     [tune], si
        mov     byte [note_left], 1
        sti
.done:  ret

ToggleSound:
        xor     byte [sound_off], 1
StopSound:
        cli
        mov     word [tune], 0
        sti
        jmp     Silence

; Called by the timer's interrupt, DS set, AX saved: the next note when it is time.
StepSound:
        cmp     word [tune], 0
        je      .done
        dec     byte [note_left]
        jnz     .done
        push    si
        mov     si, [tune]
        mov     ax, [si]
        cmp     ax, kEndOfTune
        je      .end
        push    ax
        mov     al, [si + 2]
        mov     [note_left], al
        add     word [tune], 3
        pop     ax
        test    ax, ax
        jz      .rest
        call    StartTone
        pop     si
        ret
.end:   mov     word [tune], 0
.rest:  call    Silence
        pop     si
.done:  ret

; AX = divisor.
StartTone:
        push    ax
        mov     al, 0B6h
        out     43h, al
        pop     ax
        out     42h, al
        mov     al, ah
        out     42h, al
        in      al, 61h
        or      al, 3
        out     61h, al
        ret

Silence:
        in      al, 61h
        and     al, 0FCh
        out     61h, al
        ret

%macro notes 2-*
    %rep %0 / 2
        dw %1
        db %2
        %rotate 2
    %endrep
        dw kEndOfTune
%endmacro

kC4     equ NOTE(262)
kD4     equ NOTE(294)
kE4     equ NOTE(330)
kG4     equ NOTE(392)
kA4     equ NOTE(440)
kC5     equ NOTE(523)
kD5     equ NOTE(587)
kE5     equ NOTE(659)
kG5     equ NOTE(784)
kA5     equ NOTE(880)
kC6     equ NOTE(1047)

tune:           dw 0
note_left:      db 0
sound_off:      db 0
