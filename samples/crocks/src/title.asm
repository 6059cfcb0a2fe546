; The title screen.

kTitleX         equ 46
kTitleStep      equ 79
kTitleY         equ 14

; Runs the title. Carry: Esc, the player leaves.
RunTitle:
        xor     ax, ax
        call    SetLight
        call    DrawTitlePicture
        call    DrawTitleFrame
        call    FadeIn
        call    WaitRetrace
        call    ForgetKeys              ; who waits for the file may press a key at once
        call    TellReady
        mov     si, tune_title
        call    PlaySound
.frame: call    TakeTicks
        mov     cx, ax
        call    MoveSnow
        call    DrawTitleFrame
        call    NextPress
        jz      .frame
        cmp     al, kKeyEsc
        je      .leave
        cmp     al, kKeyEnter
        je      .play
        cmp     al, kKeySpace
        je      .play
        cmp     al, kKeyM
        je      .sound
        cmp     al, kKeyH
        je      .help
        cmp     al, kKeyF1
        jne     .frame
.help:  call    ShowHelp
        call    DrawTitlePicture
        jmp     .frame
.sound: call    ToggleSound
        jmp     .frame
.play:  call    StopSound
        clc
        ret
.leave: call    StopSound
        stc
        ret

; "Jangdokdae" in large Hangul, outlined, with snow lying on the strokes.
DrawTitlePicture:
        mov     es, [picture]
        call    DrawScenery
        mov     word [hangul_unit], 5
        mov     word [hangul_pen], 8
        mov     word [hangul_growth], 3
        mov     bl, kSky + 4
        call    DrawTitleWord
        mov     word [hangul_growth], 1
        mov     bl, kClay + 2
        call    DrawTitleWord
        mov     word [hangul_growth], 0
        mov     word [hangul_dot], PutTitleDot
        mov     bl, kClay + 8
        call    DrawTitleWord
        mov     word [hangul_dot], PutPixel
        mov     word [hangul_unit], 1
        mov     word [hangul_pen], 1
        call    LaySnow
        mov     si, text_english
        mov     dx, 101
        mov     bx, kNight * 256 + kSnow + 14
        call    DrawHangulCentred
        mov     si, text_title_keys
        mov     dx, 190
        mov     bl, kNight + 2
        jmp     DrawPlainCentred

; BL = colour.
DrawTitleWord:
        mov     [title_colour], bl
        mov     si, text_title
        mov     ax, kTitleX
        mov     dx, kTitleY
.next:  mov     bl, [title_colour]
        call    DrawHangul
.end:   inc     si
        cmp     byte [si - 1], 0
        jne     .end
        add     ax, kTitleStep - kHangulAdvance * 5
        cmp     si, text_title_end
        jb      .next
        ret

; SI = ASCII text, DX = y, BL = colour: small and without a shadow.
DrawPlainCentred:
        call    TextWidth
        neg     ax
        add     ax, kWidth
        shr     ax, 1
.next:  mov     cl, [si]
        inc     si
        test    cl, cl
        jz      .done
        call    DrawLetter
        add     ax, 8
        jmp     .next
.done:  ret

; A dot of the title: burnt clay, lighter above.
PutTitleDot:
        pusha
        mov     cx, kTitleY + 80
        sub     cx, dx
        shr     cx, 3
        add     cl, kClay + 5
        mov     bl, cl
        call    PutPixel
        popa
        ret

; Two rows of snow on all that is clay and has the title's outline above it.
LaySnow:
        mov     dx, kTitleY - 2
.row:   mov     ax, kTitleX - 4
.pixel: imul    di, dx, kWidth
        add     di, ax
        mov     cl, [es:di]
        sub     cl, kClay + 5
        cmp     cl, kRamp - 5
        jae     .next
        cmp     byte [es:di - kWidth], kClay + 2
        jne     .next
        mov     bl, kWhite
        call    .put
        sub     dx, 2
        test    al, 4
        jz      .less
        dec     dx
        call    .put
        inc     dx
.less:  call    .put
        inc     dx
        call    .put
        inc     dx
        inc     dx
        mov     bl, kSnow + 12
        call    .put
        dec     dx
.next:  inc     ax
        cmp     ax, kTitleX + kTitleStep * 3
        jb      .pixel
        inc     dx
        cmp     dx, kTitleY + 80
        jb      .row
        ret
.put:   jmp     PutPixel

DrawTitleFrame:
        call    BeginFrame
        mov     cx, kFlakes
        call    DrawSnow
        test    byte [ticks], 64
        jnz     .shown
        mov     si, text_press_enter
        mov     dx, 120
        mov     bx, kNight * 256 + kGlow + 14
        call    DrawHangulCentred
.shown: jmp     ShowFrame

text_title:       db "장", 0, "독", 0, "대", 0
text_title_end:
text_english:     db "Snow on the Crocks", 0
text_press_enter: db "Enter 시작", 0
text_title_keys:  db "H help    M sound    Esc leave", 0

tune_title:
                notes kC5,18, kD5,18, kE5,36, 0,2, kG5,18, kE5,18, kD5,36, 0,2, \
                      kE5,18, kD5,18, kC5,36, 0,2, kA4,18, kC5,18, kG4,50, 0,4, \
                      kA4,18, kC5,18, kD5,36, 0,2, kE5,18, kG5,18, kE5,36, 0,2, \
                      kD5,18, kE5,18, kD5,18, kA4,18, kC5,64

section .bss
title_colour:   resb 1
section .text
