; The night over the hill: what stands still behind the title and behind the play.

kHorizon        equ 162                 ; the sky's last line
kGround         equ 176                 ; the ground where the children run
kMoonX          equ 298
kMoonY          equ 20
kMoonRadius     equ 13
kHalo           equ 40
kLastStar       equ 118                 ; no star of the sky stands lower

; Draws the whole scenery into ES.
DrawScenery:
        mov     word [seed_scenery], 1941
        call    DrawSky
        call    DrawMilkyWay
        call    DrawMoon
        call    DrawHills
        call    DrawTrees
        mov     si, sprite_house
        mov     ax, 28
        mov     dx, 146
        call    DrawSprite
        jmp     DrawGround

; A slanting band of faint stars, crowded in its middle, and some strewn over the whole sky.
DrawMilkyWay:
        mov     cx, 700
.band:  mov     di, seed_scenery
        mov     bx, 360
        call    RandomBelow
        mov     si, ax                  ; along the band
        mov     bx, 46
        call    RandomBelow
        mov     dx, ax
        call    RandomBelow
        add     dx, ax                  ; across: the sum of two favours the middle
        mov     ax, si
        shr     ax, 2
        sub     dx, ax
        add     dx, 62
        mov     bx, 5
        call    RandomBelow
        call    PutFaintStar
        loop    .band
        mov     cx, 110
.strew: mov     di, seed_scenery
        mov     bx, kWidth
        call    RandomBelow
        mov     si, ax
        mov     bx, kLastStar
        call    RandomBelow
        mov     dx, ax
        mov     bx, 9
        call    RandomBelow
        add     ax, 4
        call    PutFaintStar
        loop    .strew
        ret

; SI = x, DX = y, AX = light, 0 to 12. The sky is brighter further down, and so is a star that can
; be seen there.
PutFaintStar:
        cmp     dx, kLastStar
        jae     .done
        mov     bx, dx
        shr     bx, 4
        sub     bx, 2
        cmp     ax, bx
        jge     .seen
        mov     ax, bx
.seen:  mov     bx, ax
        add     bl, kSilver
        mov     ax, si
        call    PutPixel
.done:  ret

; A crescent: the part of one disc that another does not cover; and the glow around it.
DrawMoon:
        mov     dx, kMoonY - kHalo
.row:   mov     cx, kMoonX - kHalo
.pixel: call    DrawMoonPixel
        inc     cx
        cmp     cx, kMoonX + kHalo
        jb      .pixel
        inc     dx
        cmp     dx, kMoonY + kHalo
        jl      .row
        ret

; CX = x, DX = y.
DrawMoonPixel:
        cmp     cx, kWidth
        jae     .done
        cmp     dx, kHeight
        jae     .done
        mov     si, kMoonX
        mov     di, kMoonY
        call    SquaredDistance
        cmp     ax, kMoonRadius * kMoonRadius
        ja      .halo
        push    ax
        mov     si, kMoonX - 7
        mov     di, kMoonY - 4
        call    SquaredDistance
        cmp     ax, kMoonRadius * kMoonRadius - 20
        pop     ax
        jbe     .halo
        mov     bx, ax                  ; brighter towards the rim
        shr     bx, 4
        add     bl, kMoon + 3
        mov     ax, cx
        jmp     PutPixel
.halo:  mov     bx, kHalo * kHalo
        sub     bx, ax
        jbe     .done
        shr     bx, 5                   ; at most 50, quarters of a colour; blurred like the sky
        mov     si, dx
        and     si, 3
        shl     si, 2
        mov     ax, cx
        and     ax, 3
        add     si, ax
        movzx   ax, byte [blur_pattern + si]
        add     ax, bx
        shr     ax, 2
        imul    di, dx, kWidth
        add     di, cx
        mov     bl, [es:di]
        cmp     bl, kSky + kSkyColours
        jae     .done
        add     bl, al
        mov     [es:di], bl
.done:  ret

; Firs along the near ridges: x, y of the foot, height.
DrawTrees:
        mov     si, trees
.tree:  lodsw
        cmp     ax, -1
        je      .done
        mov     cx, ax
        lodsw
        mov     dx, ax
        lodsw
        call    DrawFir
        jmp     .tree
.done:  ret

; CX = x, DX = y of the foot, AX = height. The fir is as dark as the ground, its right side lit.
DrawFir:
        pusha
        mov     bp, ax
        mov     si, dx
        sub     dx, ax
        xor     di, di                  ; rows from the top
.row:   mov     ax, di
        and     ax, 7                   ; branches: each 8 rows the fir starts slim again
        mov     bx, di
        shr     bx, 2
        add     ax, bx
        shr     ax, 1
        push    bp
        mov     bp, ax                  ; half width of this row
        mov     ax, cx
        sub     ax, bp
        mov     bl, kHill + 1
.pixel: push    ax
        sub     ax, cx
        cmp     ax, bp
        pop     ax
        jne     .put
        mov     bl, kHill + 8
.put:   call    PutPixel
        inc     ax
        push    ax
        sub     ax, cx
        cmp     ax, bp
        pop     ax
        jle     .pixel
        pop     bp
        inc     dx
        inc     di
        cmp     di, bp
        jb      .row
        popa
        ret

; The meadow in front: dark, with blades of grass along its upper edge.
DrawGround:
        mov     cx, kWidth
        xor     ax, ax
.blade: push    ax
        mov     di, seed_scenery
        mov     bx, 5
        call    RandomBelow
        mov     dx, kGround + 4
        sub     dx, ax
        mov     bx, ax
        add     bl, kHill + 3
        pop     ax
.down:  call    PutPixel
        inc     dx
        cmp     bl, kHill + 1
        jbe     .flat
        dec     bl
.flat:  cmp     dx, kHeight
        jb      .down
        inc     ax
        loop    .blade
        ret

ridges:         dw 142, 45
                db 40, 10, kHill + 9, 3
                dw 11
                dw 153, 60
                db 170, 90, kHill + 5, 4
                dw 8
                dw 166, 40
                db 100, 30, kHill + 2, 4
                dw 6
                dw 0

trees:          dw 10, 176, 26, 18, 178, 20, 92, 170, 18, 99, 171, 26, 107, 172, 20
                dw 222, 172, 22, 292, 176, 34, 305, 178, 44, 315, 178, 30, 282, 176, 20
                dw -1
