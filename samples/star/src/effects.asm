; What glitters: sparks, words that rise, the twinkling sky. None of it matters for the play.

kSparks         equ 72
kRisings         equ 4
kTwinkles       equ 26

struc Spark
.life:          resb 1                  ; 0 free; at most 31
.ramp:          resb 1                  ; its colours in the palette
.x:             resw 1                  ; places and speeds in 1/64 pixel
.y:             resw 1
.dx:            resw 1
.dy:            resw 1
endstruc

struc Rising
.life:          resw 1
.x:             resw 1
.y:             resw 1
.text:          resb 8
endstruc

; A spark at AX, DX (1/64 pixel) of the ramp BL with the life BH, flying to anywhere at the speed CX
; at most. The oldest one makes room.
AddSpark:
        pusha
        mov     si, [next_spark]
        mov     [si + Spark.x], ax
        mov     [si + Spark.y], dx
        mov     [si + Spark.ramp], bl
        mov     [si + Spark.life], bh
        mov     di, seed_effects
        mov     bx, cx
        shl     bx, 1
        inc     bx
        call    RandomBelow
        sub     ax, cx
        mov     [si + Spark.dx], ax
        call    RandomBelow
        sub     ax, cx
        mov     [si + Spark.dy], ax
        add     si, Spark_size
        cmp     si, sparks + kSparks * Spark_size
        jb      .kept
        mov     si, sparks
.kept:  mov     [next_spark], si
        popa
        ret

; BP sparks at once, otherwise as AddSpark.
AddBurst:
        call    AddSpark
        dec     bp
        jnz     AddBurst
        ret

; One tick: sparks fly, sink and fade.
MoveSparks:
        mov     si, sparks
        mov     cx, kSparks
.spark: cmp     byte [si + Spark.life], 0
        je      .next
        dec     byte [si + Spark.life]
        mov     ax, [si + Spark.dx]
        add     [si + Spark.x], ax
        mov     ax, [si + Spark.dy]
        add     [si + Spark.y], ax
        inc     word [si + Spark.dy]
.next:  add     si, Spark_size
        loop    .spark
        ret

DrawSparks:
        mov     si, sparks
        mov     cx, kSparks
.spark: mov     bl, [si + Spark.life]
        sub     bl, 1
        jc      .next
        shr     bl, 1
        cmp     bl, 6                   ; it goes out before it is darker than the sky
        jae     .light
        mov     bl, 6
.light: add     bl, [si + Spark.ramp]
        mov     ax, [si + Spark.x]
        sar     ax, 6
        mov     dx, [si + Spark.y]
        sar     dx, 6
        call    PutPixel
        cmp     byte [si + Spark.life], 18
        jb      .next
        inc     ax
        call    PutPixel
.next:  add     si, Spark_size
        loop    .spark
        ret

; A word that rises from AX, DX (pixels): a "+" and the number CX.
AddRisingNumber:
        pusha
        mov     si, [next_rising]
        sub     ax, 12
        jns     .left
        xor     ax, ax
.left:  cmp     ax, kWidth - 42
        jbe     .right
        mov     ax, kWidth - 42
.right: mov     [si + Rising.x], ax
        mov     [si + Rising.y], dx
        mov     word [si + Rising.life], 48
        mov     byte [si + Rising.text], '+'
        lea     di, [si + Rising.text + 1]
        mov     ax, cx
        call    FormatShort
        add     si, Rising_size
        cmp     si, risings + kRisings * Rising_size
        jb      .kept
        mov     si, risings
.kept:  mov     [next_rising], si
        popa
        ret

MoveRisings:
        mov     si, risings
        mov     cx, kRisings
.word:  cmp     word [si + Rising.life], 0
        je      .next
        dec     word [si + Rising.life]
        test    word [si + Rising.life], 1
        jz      .next
        dec     word [si + Rising.y]
.next:  add     si, Rising_size
        loop    .word
        ret

DrawRisings:
        mov     si, risings
        mov     cx, kRisings
.word:  mov     bx, [si + Rising.life]
        test    bx, bx
        jz      .next
        shr     bx, 3
        add     bl, kGold + 9
        mov     ax, [si + Rising.x]
        mov     dx, [si + Rising.y]
        push    si
        add     si, Rising.text
        call    DrawText
        pop     si
.next:  add     si, Rising_size
        loop    .word
        ret

; Forgets all sparks and words.
ClearEffects:
        push    es
        push    ds
        pop     es
        mov     di, sparks
        mov     cx, kSparks * Spark_size + kRisings * Rising_size
        xor     al, al
        rep     stosb
        pop     es
        mov     word [next_spark], sparks
        mov     word [next_rising], risings
        ret

; Stars that twinkle: always the same places, the light a wave of time.
DrawTwinkles:
        mov     word [seed_twinkles], 7
        mov     cx, kTwinkles
.star:  mov     di, seed_twinkles
        mov     bx, kWidth
        call    RandomBelow
        mov     si, ax
        mov     bx, 120
        call    RandomBelow
        mov     dx, ax
        mov     bx, 256
        call    RandomBelow
        mov     bp, ax
        mov     ax, [ticks]
        shr     ax, 1
        test    cx, 1
        jz      .slow
        shl     ax, 1
.slow:  add     ax, bp
        call    Sine
        sar     ax, 3                   ; -8 to 8
        add     ax, 7
        js      .next
        mov     bp, ax
        call    DrawTwinkle
.next:  loop    .star
        ret

; One of them at SI, DX with the light BP, 0 to 15. Only the brightest have rays.
DrawTwinkle:
        pusha
        mov     ax, si
        mov     bx, bp
        add     bl, kSilver
        call    PutSkyPixel
        sub     bp, 9
        jle     .done
        mov     bx, bp
        add     bl, kSilver + 2
        dec     ax
        call    PutSkyPixel
        add     ax, 2
        call    PutSkyPixel
        dec     ax
        dec     dx
        call    PutSkyPixel
        add     dx, 2
        call    PutSkyPixel
.done:  popa
        ret

; As PutPixel, but only where nothing stands before the sky.
PutSkyPixel:
        cmp     ax, kWidth
        jae     .done
        cmp     dx, kHeight
        jae     .done
        push    di
        imul    di, dx, kWidth
        add     di, ax
        cmp     byte [es:di], kSky
        jb      .kept
        cmp     byte [es:di], kSky + kSkyColours
        jae     .kept
        mov     [es:di], bl
.kept:  pop     di
.done:  ret

; Darkens a rectangle, so that text can be read on it. AX = x, DX = y, CX = width, BP = height.
ShadeRect:
        pusha
        imul    di, dx, kWidth
        add     di, ax
.row:   push    cx
        push    di
.pixel: mov     al, [es:di]
        cmp     al, kHill
        jae     .ramp
        sub     al, kSky                ; the sky is one long ramp
        shr     al, 2
        add     al, kSky
        jmp     .put
.ramp:  mov     ah, al
        and     ax, 0F00Fh
        shr     al, 2
        or      al, ah
.put:   stosb
        loop    .pixel
        pop     di
        pop     cx
        add     di, kWidth
        dec     bp
        jnz     .row
        popa
        ret

seed_effects:   dw 99
