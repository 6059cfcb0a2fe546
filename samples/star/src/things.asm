; What falls: stars, comets, embers, hearts.

kThings         equ 16
kMargin         equ 16                  ; between the screen's edge and the blanket
kFallLeft       equ 26                  ; nothing falls beyond these
kFallRight      equ 294
kCatchTop       equ 170                 ; the blanket's height, and the ground
kCatchEnd       equ 184

kThingStar      equ 1                   ; kinds; 0 is a free place
kThingComet     equ 2
kThingEmber     equ 3
kThingHeart     equ 4

struc Thing
.kind:          resb 1
.age:           resb 1
.x:             resw 1                  ; middle, pixels
.y:             resw 1                  ; middle, 1/64 pixel
.speed:         resw 1
endstruc

ClearThings:
        mov     si, things
        mov     cx, kThings
.next:  mov     byte [si + Thing.kind], 0
        add     si, Thing_size
        loop    .next
        ret

; One tick of the night's rows.
DropThings:
        dec     word [star_wait]
        jnz     .ember
        mov     al, kThingStar
        mov     dx, [star_x]
        call    DropThing
        call    NextOfRow
        mov     [star_wait], ax
        mov     [star_x], dx
.ember: dec     word [ember_wait]
        jnz     .comet
        mov     al, kThingEmber
        call    RandomPlace
        call    DropThing
        call    SetEmberWait
.comet: dec     word [comet_wait]
        jnz     .done
        mov     al, kThingComet
        call    RandomPlace
        call    DropThing
        call    SetCometWait
.done:  ret

SetEmberWait:
        call    NightRow
        movzx   ax, byte [si + Night.ember]
        shl     ax, 2                   ; 0, none, waits longer than any night lasts
        mov     [ember_wait], ax
        ret

SetCometWait:
        call    NightRow
        movzx   ax, byte [si + Night.comet]
        shl     ax, 2
        mov     [comet_wait], ax
        ret

; DX = a place for something that is no star. It has numbers of its own, so that the stars' row does
; not depend on it.
RandomPlace:
        push    ax
        mov     di, seed_places
        mov     bx, kFallRight - kFallLeft
        call    RandomBelow
        add     ax, kFallLeft
        mov     dx, ax
        pop     ax
        ret

; AL = kind, DX = x. Without a free place nothing falls.
DropThing:
        mov     di, things
        mov     cx, kThings
.free:  cmp     byte [di + Thing.kind], 0
        je      .found
        add     di, Thing_size
        loop    .free
        ret
.found: mov     [di + Thing.kind], al
        mov     byte [di + Thing.age], 0
        mov     [di + Thing.x], dx
        mov     word [di + Thing.y], -8 * 64
        call    NightRow
        movzx   bx, byte [si + Night.speed]
        cmp     al, kThingComet
        jne     .speed
        mov     dx, bx                  ; comets are half as fast again
        shr     dx, 1
        add     bx, dx
.speed: mov     [di + Thing.speed], bx
        ret

; One tick for all that falls.
MoveThings:
        mov     si, things
        mov     cx, kThings
.thing: cmp     byte [si + Thing.kind], 0
        je      .next
        push    cx
        call    MoveThing
        pop     cx
.next:  add     si, Thing_size
        loop    .thing
        ret

MoveThing:
        inc     byte [si + Thing.age]
        mov     ax, [si + Thing.speed]
        add     [si + Thing.y], ax
        call    LeaveTrail
        mov     ax, [si + Thing.y]
        cmp     ax, kCatchTop * 64
        jl      .done
        cmp     ax, kCatchEnd * 64
        jge     .landed
        mov     ax, [player_x]
        sar     ax, 6
        sub     ax, [si + Thing.x]
        jns     .right
        neg     ax
.right: sub     ax, 3                   ; a star is not a point
        cmp     ax, [half_width]
        jg      .done
        call    CatchThing
        mov     byte [si + Thing.kind], 0
        ret
.landed:
        call    LoseThing
        mov     byte [si + Thing.kind], 0
.done:  ret

LeaveTrail:
        mov     al, [si + Thing.age]
        cmp     byte [si + Thing.kind], kThingComet
        je      .spark                  ; comets leave the thickest
        test    al, 1
        jnz     .done
.spark: call    ThingPlace
        sub     dx, 3 * 64
        mov     bh, 20
        mov     cx, 12
        jmp     AddSpark
.done:  ret

; AX, DX = place of the thing SI in 1/64 pixel, BL = the ramp of its sparks.
ThingPlace:
        mov     ax, [si + Thing.x]
        shl     ax, 6
        movzx   bx, byte [si + Thing.kind]
        mov     bl, [thing_ramps + bx]
        mov     dx, [si + Thing.y]
        ret

; The thing SI lies in the blanket.
CatchThing:
        push    si
        mov     word [bounce], 14
        mov     byte [hud_stale], 1
        call    ThingPlace
        mov     bh, 31
        mov     cx, 80
        mov     bp, 14
        call    AddBurst
        movzx   bx, byte [si + Thing.kind]
        shl     bx, 1
        call    [catch_deeds + bx]
        pop     si
        ret

; The thing SI lies on the ground.
LoseThing:
        push    si
        call    ThingPlace
        mov     dx, kCatchEnd * 64
        mov     bh, 20
        mov     cx, 40
        mov     bp, 8
        call    AddBurst
        cmp     byte [si + Thing.kind], kThingStar
        jne     .done
        cmp     byte [phase], kFalling
        jne     .done
        mov     si, tune_lost
        call    LoseLife
.done:  pop     si
        ret

; SI = tune of this loss.
LoseLife:
        mov     byte [hud_stale], 1
        mov     word [combo], 0
        dec     word [lives]
        jz      EndGame
        jmp     PlaySound

CatchStar:
        cmp     byte [phase], kFalling
        jne     .done
        inc     word [combo]
        mov     ax, 10
        call    Reward
        call    PlayCatchTune
        call    AddStarToSky
        inc     word [caught]
        call    NightRow
        mov     ax, [caught]
        cmp     al, [si + Night.heart]
        jne     .goal
        mov     al, kThingHeart
        call    RandomPlace
        call    DropThing
        call    NightRow
        mov     ax, [caught]
.goal:  cmp     al, [si + Night.goal]
        jae     CountNight
.done:  ret

CatchComet:
        mov     ax, 50
        call    Reward
        mov     si, tune_comet
        jmp     PlaySound

CatchEmber:
        cmp     byte [phase], kFalling
        jne     .done
        mov     si, tune_ember
        call    LoseLife
.done:  ret

CatchHeart:
        mov     si, tune_heart
        call    PlaySound
        cmp     word [lives], kMostLives
        jae     .done
        inc     word [lives]
.done:  ret

; The night is done: each heart gives 50, and the log gets its line.
CountNight:
        mov     al, kCounted
        call    EnterPhase
        imul    ax, [lives], 50
        mov     [bonus], ax
        call    AddScore
        call    LogNight
        mov     si, tune_counted
        jmp     PlaySound

; AX = points, multiplied by one more for each five stars in a row, by five at most; shown above the
; children.
Reward:
        push    ax
        call    Multiplier
        mov     bx, ax
        pop     ax
        mul     bx
        call    AddScore
        mov     cx, ax
        mov     ax, [player_x]
        sar     ax, 6
        mov     dx, kCatchTop - 18
        jmp     AddRisingNumber

; AX = 1 to 5.
Multiplier:
        mov     ax, [combo]
        mov     bl, 5
        div     bl
        xor     ah, ah
        inc     ax
        cmp     ax, 5
        jbe     .done
        mov     ax, 5
.done:  ret

; AX = points. Keeps AX.
AddScore:
        add     [score], ax
        adc     word [score + 2], 0
        cmp     dword [score], 999999
        jbe     .done
        mov     dword [score], 999999
.done:  mov     byte [hud_stale], 1
        ret

; A star that was counted has its place in the sky again.
AddStarToSky:
        push    es
        mov     es, [picture]
        mov     di, seed_effects
        mov     bx, kWidth - 16
        call    RandomBelow
        add     ax, 8
        mov     cx, ax
        mov     bx, 104
        call    RandomBelow
        add     ax, 6
        mov     dx, ax
        mov     bx, 6
        call    RandomBelow
        add     ax, 9
        mov     bp, ax
        mov     si, cx
        call    DrawTwinkle
        pop     es
        ret

; Two notes, the higher the more stars came in a row.
PlayCatchTune:
        mov     bx, [combo]
        dec     bx
        cmp     bx, kCatchNotes - 2
        jbe     .known
        mov     bx, kCatchNotes - 2
.known: shl     bx, 1
        mov     ax, [catch_notes + bx]
        mov     [tune_catch], ax
        mov     ax, [catch_notes + bx + 2]
        mov     [tune_catch + 3], ax
        mov     si, tune_catch
        jmp     PlaySound

; By kind.
thing_ramps:    db 0, kGold, kBlue, kEmber, kRose
catch_deeds:    dw 0, CatchStar, CatchComet, CatchEmber, CatchHeart

catch_notes:    dw kC4, kD4, kE4, kG4, kA4, kC5, kD5, kE5, kG5, kA5, kC6
kCatchNotes     equ ($ - catch_notes) / 2
tune_catch:     notes kC4,4, kD4,5
tune_lost:      notes NOTE(300),4, NOTE(240),4, NOTE(190),5, NOTE(150),8
tune_ember:     notes NOTE(110),3, NOTE(95),3, NOTE(110),3, NOTE(80),12
tune_comet:     notes kC5,3, kE5,3, kG5,3, kC6,3, kG5,3, kC6,6
tune_heart:     notes kG4,6, kC5,6, kE5,6, kG5,14
