; One game: night after night until three stars are lost.

kLives          equ 3
kMostLives      equ 5
kWait           equ 0                   ; phases: the night's name stands on the screen,
kFalling        equ 1                   ; stars fall,
kCounted        equ 2                   ; the night is done,
kOver           equ 3                   ; the game is

kWaitTicks      equ 110
kCountedTicks   equ 150
kOverTicks      equ 190

; Plays one game. Its end is in `score` and `level`.
PlayGame:
        call    BeginGame
        call    DrawPlayFrame
        call    FadeIn
        call    ForgetKeys
        call    TakeTicks               ; what passed until here does not count
.frame: call    TakeTicks
        mov     cx, ax
.tick:  push    cx
        call    UpdateTick
        pop     cx
        loop    .tick
        call    DrawPlayFrame
        call    HandlePlayKeys
        cmp     byte [phase], kOver
        jne     .frame
        cmp     word [phase_ticks], kOverTicks
        jb      .frame
        ret

BeginGame:
        call    BeginLog
        mov     es, [picture]
        call    DrawScenery
        call    ClearEffects
        xor     ax, ax
        mov     [score], ax
        mov     [score + 2], ax
        mov     [combo], ax
        mov     [level], ax
        mov     word [lives], kLives
        mov     word [player_x], kWidth / 2 * 64
        ; fall through

BeginNight:
        inc     word [level]
        call    BeginRow
        call    ClearThings
        call    NightRow
        movzx   ax, byte [si + Night.half]
        mov     [half_width], ax
        mov     word [caught], 0
        mov     byte [hud_stale], 1
        call    NextOfRow
        mov     [star_wait], ax
        mov     [star_x], dx
        call    SetEmberWait
        call    SetCometWait
        mov     al, kWait
        ; fall through

; AL = phase.
EnterPhase:
        mov     [phase], al
        mov     word [phase_ticks], 0
        ret

UpdateTick:
        inc     word [phase_ticks]
        call    MovePlayer
        call    MoveThings
        call    MoveSparks
        call    MoveRisings
        cmp     byte [phase], kFalling
        je      DropThings
        cmp     byte [phase], kCounted
        je      .counted
        cmp     byte [phase], kWait
        jne     .done
        cmp     word [phase_ticks], kWaitTicks
        jb      .done
        mov     al, kFalling
        jmp     EnterPhase
.counted:
        cmp     word [phase_ticks], kCountedTicks
        jae     BeginNight
.done:  ret

; Esc gives up, P waits, M switches the sound.
HandlePlayKeys:
        call    ReadKey
        jz      .done
        cmp     ah, kKeyEsc
        je      .leave
        or      al, 20h
        cmp     al, 'p'
        je      .pause
        cmp     al, 'm'
        jne     HandlePlayKeys
        call    ToggleSound
        jmp     HandlePlayKeys
.leave: cmp     byte [phase], kOver
        je      .at_once
        call    EndGame
        ret
.at_once:
        mov     word [phase_ticks], kOverTicks
        ret
.pause: call    StopSound
        call    DrawPause
.wait:  hlt
        call    ReadKey
        jz      .wait
        call    TakeTicks
        call    ForgetKeys
.done:  ret

EndGame:
        mov     si, tune_over
        call    PlaySound
        call    LogEnd
        mov     al, kOver
        jmp     EnterPhase

; The children run ever faster while the key is held.
kRunSlow        equ 141                 ; 1/64 pixel a tick
kRunFast        equ 215

MovePlayer:
        cmp     word [bounce], 0
        je      .keys
        dec     word [bounce]
.keys:  xor     cx, cx
        mov     bx, kKeyLeft
        call    KeyActs
        jz      .left_letter
        dec     cx
.left_letter:
        mov     bx, kKeyA
        call    KeyActs
        jz      .right
        dec     cx
.right: mov     bx, kKeyRight
        call    KeyActs
        jz      .right_letter
        inc     cx
.right_letter:
        mov     bx, kKeyD
        call    KeyActs
        jz      .run
        inc     cx
.run:   cmp     byte [phase], kOver
        je      .stand
        test    cx, cx
        jz      .stand
        mov     ax, [run_speed]
        add     ax, 4
        cmp     ax, kRunFast
        jbe     .speed
        mov     ax, kRunFast
.speed: mov     [run_speed], ax
        inc     word [run_ticks]
        test    cx, cx
        jns     .move
        neg     ax
.move:  add     ax, [player_x]
        jmp     PlacePlayer
.stand: mov     word [run_speed], kRunSlow
        mov     word [run_ticks], 0
        ret

; AX = x, kept between the walls.
PlacePlayer:
        mov     dx, [half_width]
        add     dx, kMargin
        shl     dx, 6
        cmp     ax, dx
        jge     .left
        mov     ax, dx
.left:  neg     dx
        add     dx, kWidth * 64
        cmp     ax, dx
        jle     .right
        mov     ax, dx
.right: mov     [player_x], ax
        ret

tune_over:      notes kA4,14, 0,2, kG4,14, 0,2, kE4,14, 0,2, kD4,20, 0,2, kC4,44
tune_counted:   notes kC5,8, kE5,8, kG5,8, kC6,16, 0,3, kA5,8, kC6,30
