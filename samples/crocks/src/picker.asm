; The choice of a yard.

kPickColumns    equ 6
kCardX          equ 16
kCardY          equ 36
kCardStepX      equ 49
kCardStepY      equ 44
kCardWidth      equ 43
kCardHeight     equ 40
kAhead          equ 3                   ; so many yards more than are done stand open

; [level] = the first yard that is not done.
FirstUndone:
        xor     bx, bx
.yard:  cmp     word [best_pushes + bx], 0
        je      .found
        add     bx, 2
        cmp     bx, kLevels * 2
        jb      .yard
        xor     bx, bx
.found: shr     bx, 1
        mov     [level], bx
        ret

; Lets the player choose [level]. Carry: back to the title.
RunPicker:
        call    DrawPicker
        call    DrawPickFrame
        call    FadeIn
        call    ForgetKeys
.frame: call    TakeTicks
        mov     cx, ax
        call    MoveSnow
        call    DrawPickFrame
        call    NextPress
        jz      .frame
        cmp     al, kKeyEsc
        je      .back
        cmp     al, kKeyEnter
        je      .take
        cmp     al, kKeySpace
        je      .take
        cmp     al, kKeyM
        je      .sound
        call    WayOfKey
        jc      .frame
        movzx   bx, al
        shl     bx, 1
        mov     ax, [pick_way + bx]
        add     ax, [level]
        cmp     ax, kLevels
        jae     .frame
        mov     [level], ax
        mov     si, tune_step
        call    PlaySound
        jmp     .frame
.sound: call    ToggleSound
        jmp     .frame
.take:  mov     bx, [level]
        call    IsOpen
        jc      .locked
        clc
        ret
.locked:
        mov     si, tune_bump
        call    PlaySound
        jmp     .frame
.back:  stc
        ret

; Carry: the yard BX cannot be played yet.
IsOpen: push    bx
        sub     bx, kAhead
        cmp     bx, [yards_done]
        pop     bx
        jl      .yes
        stc
        ret
.yes:   clc
        ret

DrawPicker:
        mov     es, [picture]
        call    DrawScenery
        xor     ax, ax
        xor     dx, dx
        mov     cx, kWidth
        mov     bp, kHeight
        call    ShadeRect
        mov     si, text_pick
        cmp     word [yards_done], kLevels
        jb      .title
        mov     si, text_all_done
.title: mov     dx, 11
        mov     bx, kNight * 256 + kGlow + 14
        call    DrawHangulCentred
        xor     bx, bx
.card:  call    DrawCard
        inc     bx
        cmp     bx, kLevels
        jb      .card
        ret

; AX = x, DX = y of the card BX.
CardPlace:
        mov     ax, bx
        mov     dl, kPickColumns
        div     dl
        movzx   dx, al
        movzx   ax, ah
        imul    ax, ax, kCardStepX
        imul    dx, dx, kCardStepY
        add     ax, kCardX
        add     dx, kCardY
        ret

; BX = yard.
DrawCard:
        push    bx
        call    CardPlace
        mov     cx, kCardWidth
        mov     bp, kCardHeight
        push    bx
        mov     bl, kNight + 2
        call    FillRect
        pop     bx
        call    IsOpen
        jc      .locked
        mov     [card], bx
        mov     si, bx
        shl     si, 1
        mov     di, [best_pushes + si]
        mov     si, sprite_crock
        mov     bl, kNight + 9
        test    di, di
        jz      .frame
        mov     si, sprite_crock_home
        mov     bl, kClay + 13
        call    IsFewest
        jne     .frame
        mov     bl, kGlow + 14
.frame: call    DrawFrame
        push    ax
        push    dx
        add     ax, 22
        add     dx, 16
        call    DrawSprite
        pop     dx
        pop     ax
        mov     bl, kSnow + 15
        jmp     .number
.locked:
        mov     bl, kNight + 4
        call    DrawFrame
        mov     bl, kNight + 8
.number:
        pop     cx
        push    cx
        push    bx
        push    ax
        mov     ax, cx
        inc     ax
        mov     di, text_number
        call    FormatShort
        pop     ax
        pop     bx
        mov     si, text_number
        add     ax, 5
        add     dx, 4
        call    DrawHangul
        pop     bx
        ret

; Zero flag: DI pushes are the fewest for the yard [card].
IsFewest:
        pusha
        mov     bx, [card]
        shl     bx, 1
        mov     si, [levels + bx]
.name:  lodsb
        test    al, al
        jnz     .name
        movzx   ax, byte [si]
        cmp     ax, di
        popa
        ret

; The cursor, and below what is known of the yard that it stands on.
DrawPickFrame:
        call    BeginFrame
        mov     bx, [level]
        call    CardPlace
        mov     cx, kCardWidth + 4
        mov     bp, kCardHeight + 4
        sub     ax, 2
        sub     dx, 2
        mov     bl, kGlow + 15
        test    byte [ticks], 32
        jz      .bright
        mov     bl, kGlow + 9
.bright:
        call    DrawFrame
        inc     ax
        inc     dx
        sub     cx, 2
        sub     bp, 2
        call    DrawFrame
        mov     cx, 24
        call    DrawSnow
        mov     bx, [level]
        call    IsOpen
        mov     si, text_locked
        mov     bl, kNight + 12
        jc      .line
        call    DescribeYard
        mov     si, text_yard
        mov     bl, kSnow + 15
.line:  mov     dx, 176
        mov     bh, kNight
        call    DrawHangulCentred
        jmp     ShowFrame

; `text_yard` = the name of the yard [level], and its record.
DescribeYard:
        push    es
        push    ds
        pop     es
        mov     di, text_yard
        call    LevelRow
        call    CopyText
        lodsb
        movzx   cx, al                  ; the fewest pushes
        mov     bx, [level]
        shl     bx, 1
        mov     ax, [best_pushes + bx]
        mov     si, text_not_done
        test    ax, ax
        jz      .done
        push    ax
        mov     si, text_own
        call    CopyText
        pop     ax
        call    FormatShort
        call    FindEnd
        mov     al, '/'
        stosb
        mov     ax, cx
        call    FormatShort
        pop     es
        ret
.done:  call    CopyText
        pop     es
        ret

; Copies the text SI to DI; SI = behind its end, DI = its end.
CopyText:
        lodsb
        stosb
        test    al, al
        jnz     CopyText
        dec     di
        ret

pick_way:       dw -kPickColumns, -1, 1, kPickColumns
text_pick:      db "어느 뜰을 치울까요?", 0
text_all_done:  db "모두 치웠어요. 고마워요!", 0
text_locked:    db "앞의 뜰을 먼저 치워 주세요", 0
text_own:       db "   밀기 ", 0
text_not_done:  db "   아직이에요", 0

section .bss
card:           resw 1
text_yard:      resb 96
section .text
