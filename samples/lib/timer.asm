; Time: the system timer runs at four times its usual rate while the game does, 72.8 ticks a second.
; All that moves is counted in these ticks, so the game is as fast on every machine.

kTimerDivisor   equ 4000h               ; of 1193182 Hz
kTicksPerSecond equ 73                  ; rounded

TakeTimer:
        push    es
        mov     ax, 3508h
        int     21h
        mov     [old_timer], bx
        mov     [old_timer + 2], es
        pop     es
        mov     dx, OnTimer
        mov     ax, 2508h
        int     21h
        mov     bx, kTimerDivisor
        jmp     SetTimerRate

ReleaseTimer:
        call    StopSound
        xor     bx, bx                  ; 65536, the usual rate
        call    SetTimerRate
        push    ds
        lds     dx, [old_timer]
        mov     ax, 2508h
        int     21h
        pop     ds
        ret

; BX = divisor.
SetTimerRate:
        cli
        mov     al, 36h
        out     43h, al
        mov     al, bl
        out     40h, al
        mov     al, bh
        out     40h, al
        sti
        ret

; The interrupt. Each fourth one is passed on, so that the clock of DOS goes on rightly.
OnTimer:
        push    ax
        push    ds
        push    cs
        pop     ds
        inc     word [ticks]
        call    StepSound
        inc     byte [timer_phase]
        test    byte [timer_phase], 3
        jz      .pass
        mov     al, 20h
        out     20h, al
        pop     ds
        pop     ax
        iret
.pass:  pop     ds
        pop     ax
        jmp     far [cs:old_timer]

; AX = ticks since the last call, waiting for one at least; never more than a quarter of a second,
; so that a machine that stood still does not lose the game for the player.
TakeTicks:
        mov     ax, [ticks]
        sub     ax, [ticks_taken]
        jnz     .some
        hlt
        jmp     TakeTicks
.some:  add     [ticks_taken], ax
        cmp     ax, kTicksPerSecond / 4
        jbe     .done
        mov     ax, kTicksPerSecond / 4
.done:  ret

old_timer:      dd 0
ticks:          dw 0
ticks_taken:    dw 0
timer_phase:    db 0
